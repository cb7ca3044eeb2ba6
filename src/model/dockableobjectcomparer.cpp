// Utils::DockableObjectComparer: the instantiations of the model, and the comparer of two unknown kinds.
#include "tqWorkRig/model/dockableobjectcomparer.h"

#include <type_traits>

#include "tqWorkRig/connection/toolassembly.h"
#include "tqWorkRig/model/arbor.h"
#include "tqWorkRig/model/holder.h"
#include "tqWorkRig/model/stock.h"
#include "tqWorkRig/model/stockadapter.h"
#include "tqWorkRig/model/tool.h"
#include "tqWorkRig/model/tooladapter.h"

namespace tqWorkRig {
namespace Utils {

template class DockableObjectComparer<Tool>;
template class DockableObjectComparer<Holder>;
template class DockableObjectComparer<Arbor>;
template class DockableObjectComparer<ToolAdapter>;
template class DockableObjectComparer<StockAdapter>;
template class DockableObjectComparer<Stock>;

namespace {

/// Second dispatch: learns the left object's class; only the right object's class can be equal.
template <class Right>
class LeftSide
    : public misc::detail_::TypedVisitor<LeftSide<Right>, DockableObjectVisitor, DockableObject, DockableObjectList> {
public:
    LeftSide(const Right& right, bool& result) : m_right(right), m_result(result) {}
    template <class Left>
    void OnVisit(const Left& left) {
        if constexpr (std::is_same<Left, Right>::value) {
            m_result = left == m_right;
        } else {
            m_result = false;
        }
    }
    void OnVisitBase(const DockableObject&) { m_result = false; }

private:
    const Right& m_right;
    bool& m_result;
};

}  // namespace

DockableObjectComparer<DockableObject>::DockableObjectComparer(const DockableObject& left)
    : m_result(false), m_left(left) {
    misc::detail_::KeepSlots<DockableObjectComparer<DockableObject>>(static_cast<DockableObjectList*>(nullptr));
}

DockableObjectComparer<DockableObject>::~DockableObjectComparer() = default;

template <class U>
void DockableObjectComparer<DockableObject>::OnVisit(const U& right) {
    // The right object is comparing its frames, one of which brought us here: count it as equal and stop.
    if (right.IsComparing()) {
        m_result = true;
        return;
    }
    LeftSide<U> second(right, m_result);
    m_left.AcceptVisitor(second);
}

void DockableObjectComparer<DockableObject>::OnVisitBase(const DockableObject&) { m_result = false; }

static_assert(!std::is_abstract<DockableObjectComparer<Stock>>::value,
              "DockableObjectList must cover every DockableObjectVisitor slot");

}  // namespace Utils
}  // namespace tqWorkRig
