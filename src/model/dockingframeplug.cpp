// DockingFramePlug: construction and visiting.
#include "tqWorkRig/model/dockingframeplug.h"

#include "tqWorkRig/model/dockingframevisitor.h"

namespace tqWorkRig {

DockingFramePlug::DockingFramePlug(const tqstring& displayName) : DockingFrame(displayName) {}

DockingFramePlug::DockingFramePlug(const DockingFramePlug& other) = default;

DockingFramePlug& DockingFramePlug::operator=(const DockingFramePlug& other) = default;

DockingFramePlug::~DockingFramePlug() = default;

void DockingFramePlug::AcceptVisitor(DockingFrameVisitor& visitor) const { visitor.Visit(*this); }

}  // namespace tqWorkRig
