// tqToolComparator: double dispatch over tqToolList.
#include "cadcam/tools/tqtoolcomparator.h"

#include <typeinfo>

#include "cadcam/tools/tqalltools.h"
#include "misc/tqexception.h"

namespace cadcam {
namespace {

[[noreturn]] void RefuseAbstract() {
    misc::ThrowFailure(u"cadcam::tqToolComparator::Visit", u"Trying to compare an abstract type.");
}

/// Second dispatch for tools of different classes: they are unequal, unless the right one is of a class outside
/// the list, which is refused as the left one would be. One visitor for all left classes keeps the dispatch
/// table linear in the number of classes.
class RightSide : public misc::detail_::TypedVisitor<RightSide, tqToolVisitor, tqTool, tqToolList> {
public:
    template <class Right>
    void OnVisit(const Right&) {}
    [[noreturn]] void OnVisitBase(const tqTool&) { RefuseAbstract(); }
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
    // The same dynamic class is the only way to equality, and then the right tool is a T.
    if (typeid(m_right) == typeid(T)) {
        m_result = left == static_cast<const T&>(m_right);
        return;
    }
    m_result = false;
    RightSide second;
    m_right.AcceptVisitor(second);
}

void tqToolComparator::OnVisitBase(const tqTool&) { RefuseAbstract(); }

}  // namespace cadcam
