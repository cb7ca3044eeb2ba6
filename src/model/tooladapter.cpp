// ToolAdapter: its sockets, plugs, geometry, rotating flag and equality.
#include "tqWorkRig/model/tooladapter.h"

#include "model/dockingframelists.h"
#include "model/geometrytypes.h"
#include "tqWorkRig/model/dockableobjectvisitor.h"
#include "tqWorkRig/model/dockingframeplug.h"
#include "tqWorkRig/model/dockingframesocket.h"

namespace tqWorkRig {

ToolAdapter::ToolAdapter(const tqstring& displayName)
    : DockableObject(displayName), m_sockets(new SocketList()), m_plugs(new PlugList()), m_isRotating(false) {}

ToolAdapter::ToolAdapter(const ToolAdapter& other) = default;

ToolAdapter& ToolAdapter::operator=(const ToolAdapter& other) = default;

ToolAdapter::~ToolAdapter() = default;

void ToolAdapter::AcceptVisitor(DockableObjectVisitor& visitor) const { visitor.Visit(*this); }

void ToolAdapter::Add(const PlugPointer& plug) {
    if (plug.IsNull() || CheckIfParentOf(plug)) return;
    m_plugs->push_back(plug);
    detail_::LinkFrameToParent(*plug, *this);
}

void ToolAdapter::Add(const SocketPointer& socket) {
    if (socket.IsNull() || CheckIfParentOf(socket)) return;
    m_sockets->push_back(socket);
    detail_::LinkFrameToParent(*socket, *this);
}

bool ToolAdapter::CheckIfParentOf(const SocketPointer& socket) const {
    return detail_::ListHoldsFrame(m_sockets, socket);
}

bool ToolAdapter::CheckIfParentOf(const PlugPointer& plug) const { return detail_::ListHoldsFrame(m_plugs, plug); }

bool ToolAdapter::operator==(const ToolAdapter& other) const {
    if (this == &other) return true;
    ComparingScope comparing(*this);
    return DockableObject::operator==(other) && detail_::FrameListsEqual(m_sockets, other.m_sockets) &&
           detail_::FrameListsEqual(m_plugs, other.m_plugs) &&
           GeometryCompareVisitor::Compare(m_adapterGeometry, other.m_adapterGeometry) &&
           m_isRotating == other.m_isRotating;
}

}  // namespace tqWorkRig
