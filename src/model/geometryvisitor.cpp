// GeometryVisitor: the out-of-line destructor that anchors its vtable.
#include "tqWorkRig/model/geometryvisitor.h"

namespace tqWorkRig {

GeometryVisitor::~GeometryVisitor() = default;

}  // namespace tqWorkRig
