// DockingFrameSocket: construction and visiting.
#include "tqWorkRig/model/dockingframesocket.h"

#include "tqWorkRig/model/dockingframevisitor.h"

namespace tqWorkRig {

DockingFrameSocket::DockingFrameSocket(const tqstring& displayName) : DockingFrame(displayName) {}

DockingFrameSocket::DockingFrameSocket(const DockingFrameSocket& other) = default;

DockingFrameSocket& DockingFrameSocket::operator=(const DockingFrameSocket& other) = default;

DockingFrameSocket::~DockingFrameSocket() = default;

void DockingFrameSocket::AcceptVisitor(DockingFrameVisitor& visitor) const { visitor.Visit(*this); }

}  // namespace tqWorkRig
