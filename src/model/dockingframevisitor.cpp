// DockingFrameVisitor: the out-of-line destructor that anchors its vtable.
#include "tqWorkRig/model/dockingframevisitor.h"

namespace tqWorkRig {

DockingFrameVisitor::~DockingFrameVisitor() = default;

}  // namespace tqWorkRig
