// Stock: its plugs, geometries and equality.
#include "tqWorkRig/model/stock.h"

#include "model/dockingframelists.h"
#include "model/geometrytypes.h"
#include "tqWorkRig/model/dockableobjectvisitor.h"
#include "tqWorkRig/model/dockingframeplug.h"

namespace tqWorkRig {

Stock::Stock(const tqstring& displayName) : DockableObject(displayName), m_plugs(new PlugList()) {}

Stock::Stock(const Stock& other) = default;

Stock& Stock::operator=(const Stock& other) = default;

Stock::~Stock() = default;

void Stock::AcceptVisitor(DockableObjectVisitor& visitor) const { visitor.Visit(*this); }

bool Stock::CheckIfParentOf(const PlugPointer& plug) const { return detail_::ListHoldsFrame(m_plugs, plug); }

void Stock::Add(const PlugPointer& plug) {
    if (plug.IsNull() || CheckIfParentOf(plug)) return;
    m_plugs->push_back(plug);
    detail_::LinkFrameToParent(*plug, *this);
}

bool Stock::operator==(const Stock& other) const {
    if (this == &other) return true;
    ComparingScope comparing(*this);
    return DockableObject::operator==(other) && detail_::FrameListsEqual(m_plugs, other.m_plugs) &&
           GeometryCompareVisitor::Compare(m_partGeometry, other.m_partGeometry) &&
           GeometryCompareVisitor::Compare(m_stockGeometry, other.m_stockGeometry);
}

}  // namespace tqWorkRig
