// StockAdapter: its sockets, plugs, geometry and equality.
#include "tqWorkRig/model/stockadapter.h"

#include "model/dockingframelists.h"
#include "model/geometrytypes.h"
#include "tqWorkRig/model/dockableobjectvisitor.h"
#include "tqWorkRig/model/dockingframeplug.h"
#include "tqWorkRig/model/dockingframesocket.h"

namespace tqWorkRig {

StockAdapter::StockAdapter(const tqstring& displayName)
    : DockableObject(displayName), m_sockets(new SocketList()), m_plugs(new PlugList()) {}

StockAdapter::StockAdapter(const StockAdapter& other) = default;

StockAdapter& StockAdapter::operator=(const StockAdapter& other) = default;

StockAdapter::~StockAdapter() = default;

void StockAdapter::AcceptVisitor(DockableObjectVisitor& visitor) const { visitor.Visit(*this); }

void StockAdapter::Add(const PlugPointer& plug) {
    if (plug.IsNull() || CheckIfParentOf(plug)) return;
    m_plugs->push_back(plug);
    detail_::LinkFrameToParent(*plug, *this);
}

void StockAdapter::Add(const SocketPointer& socket) {
    if (socket.IsNull() || CheckIfParentOf(socket)) return;
    m_sockets->push_back(socket);
    detail_::LinkFrameToParent(*socket, *this);
}

bool StockAdapter::CheckIfParentOf(const SocketPointer& socket) const {
    return detail_::ListHoldsFrame(m_sockets, socket);
}

bool StockAdapter::CheckIfParentOf(const PlugPointer& plug) const { return detail_::ListHoldsFrame(m_plugs, plug); }

bool StockAdapter::operator==(const StockAdapter& other) const {
    if (this == &other) return true;
    ComparingScope comparing(*this);
    return DockableObject::operator==(other) && detail_::FrameListsEqual(m_sockets, other.m_sockets) &&
           detail_::FrameListsEqual(m_plugs, other.m_plugs) &&
           GeometryCompareVisitor::Compare(m_fixtureGeometry, other.m_fixtureGeometry);
}

}  // namespace tqWorkRig
