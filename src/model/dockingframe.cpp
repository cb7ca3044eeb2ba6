// DockingFrame: the non-owning parent link and frame equality.
#include "tqWorkRig/model/dockingframe.h"

#include "tqWorkRig/model/dockableobject.h"
#include "tqWorkRig/model/dockableobjectcomparer.h"

namespace tqWorkRig {

DockingFrame::DockingFrame(const tqstring& displayName) : BaseObject(displayName) {}

DockingFrame::DockingFrame(const DockingFrame& other) = default;

DockingFrame& DockingFrame::operator=(const DockingFrame& other) = default;

DockingFrame::~DockingFrame() {
    // Every copy of the link shares this flag, so whichever copy goes last, the parent survives.
    m_parent.SetOwns(false);
}

bool DockingFrame::operator==(const DockingFrame& other) const {
    if (this == &other) return true;
    if (!BaseObject::operator==(other)) return false;
    if (m_matrix != other.m_matrix) return false;
    if (m_parent.IsNull() || other.m_parent.IsNull()) return m_parent.IsNull() && other.m_parent.IsNull();
    // The parent is comparing its own frames: looking at it again would never end.
    if (m_parent->IsComparing()) return true;
    Utils::DockableObjectComparer<DockableObject> comparer(*m_parent);
    other.m_parent->AcceptVisitor(comparer);
    return comparer.GetResult();
}

}  // namespace tqWorkRig
