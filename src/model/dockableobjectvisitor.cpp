// DockableObjectVisitor: the empty default slots of tool, holder and arbor, and the vtable anchor.
#include "tqWorkRig/model/dockableobjectvisitor.h"

namespace tqWorkRig {

void DockableObjectVisitor::Visit(const Tool&) {}

void DockableObjectVisitor::Visit(const Holder&) {}

void DockableObjectVisitor::Visit(const Arbor&) {}

DockableObjectVisitor::~DockableObjectVisitor() = default;

}  // namespace tqWorkRig
