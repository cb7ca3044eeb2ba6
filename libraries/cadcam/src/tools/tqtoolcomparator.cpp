// tqToolComparator: double dispatch over tqToolList.
#include "cadcam/tools/tqtoolcomparator.h"

#include <type_traits>

#include "cadcam/tools/tqalltools.h"
#include "misc/tqexception.h"

namespace cadcam {
namespace {

[[noreturn]] void RefuseAbstract() {
    misc::ThrowFailure(u"cadcam::tqToolComparator::Visit", u"Trying to compare an abstract type.");
}

/// Second dispatch: learns the right tool's class; only the same class can be equal.
template <class Left>
class RightSide : public misc::detail_::TypedVisitor<RightSide<Left>, tqToolVisitor, tqTool, tqToolList> {
public:
    RightSide(const Left& left, bool& result) : m_left(left), m_result(result) {}
    template <class Right>
    void OnVisit(const Right& right) {
        if constexpr (std::is_same<Left, Right>::value) {
            m_result = m_left == right;
        } else {
            m_result = false;
        }
    }
    [[noreturn]] void OnVisitBase(const tqTool&) { RefuseAbstract(); }

private:
    const Left& m_left;
    bool& m_result;
};

}  // namespace

tqToolComparator::tqToolComparator(const tqTool& right) : m_right(right), m_result(false) {
    misc::detail_::KeepSlots<tqToolComparator>(static_cast<tqToolList*>(nullptr));
}
tqToolComparator::~tqToolComparator() = default;

bool tqToolComparator::Compare(const tqTool& left, const tqTool& right) {
    tqToolComparator comparator(right);
    left.AcceptVisitor(comparator);
    return comparator.m_result;
}

template <class T>
void tqToolComparator::OnVisit(const T& left) {
    RightSide<T> second(left, m_result);
    m_right.AcceptVisitor(second);
}

void tqToolComparator::OnVisitBase(const tqTool&) { RefuseAbstract(); }

}  // namespace cadcam
