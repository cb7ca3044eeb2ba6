// CompareVisitor: equality of two objects held through their abstract base, by double dispatch.
#pragma once

#include <type_traits>

#include "misc/tqautopointer.h"
#include "misc/tqexception.h"
#include "misc/tqtypedvisitor.h"

namespace tqWorkRig {
namespace detail_ {

using misc::detail_::TypedVisitor;

/// Compares two objects of the closed set List through Visitor: the first dispatch learns the left operand's
/// class, the second the right one's. Different classes are unequal; the same class uses that class's
/// operator==, with the left operand on the left. The base slot throws, as the base is abstract.
template <class Visitor, class Base, class List>
class CompareVisitor : public TypedVisitor<CompareVisitor<Visitor, Base, List>, Visitor, Base, List> {
public:
    /// True when both objects are of the same class of List and equal by its operator==.
    static bool Compare(const Base& left, const Base& right);
    /// The same for pointers: two nulls are equal, one null is not.
    static bool Compare(const misc::tqAutoPointer<Base>& left, const misc::tqAutoPointer<Base>& right);

    /// A visitor to be accepted by the left operand, comparing it with `right`.
    explicit CompareVisitor(const Base& right);
    /// The result of the last visit; false before any.
    bool GetResult() const { return m_result; }

    /// First dispatch: the left operand is a T; dispatch on the right one.
    template <class T>
    void OnVisit(const T& left);
    [[noreturn]] void OnVisitBase(const Base& visited);

private:
    /// Second dispatch: equal only when the right operand is a T too.
    template <class T>
    class RightVisitor : public TypedVisitor<RightVisitor<T>, Visitor, Base, List> {
    public:
        RightVisitor(const T& left, bool& result) : m_left(left), m_result(result) {}
        template <class U>
        void OnVisit(const U& right) {
            if constexpr (std::is_same<T, U>::value) {
                m_result = m_left == right;
            } else {
                m_result = false;
            }
        }
        [[noreturn]] void OnVisitBase(const Base& visited) { CompareVisitor::OnAbstract(visited); }

    private:
        const T& m_left;
        bool& m_result;
    };

    [[noreturn]] static void OnAbstract(const Base& visited);

    const Base& m_right;
    bool m_result;
};

template <class Visitor, class Base, class List>
CompareVisitor<Visitor, Base, List>::CompareVisitor(const Base& right) : m_right(right), m_result(false) {}

template <class Visitor, class Base, class List>
bool CompareVisitor<Visitor, Base, List>::Compare(const Base& left, const Base& right) {
    CompareVisitor visitor(right);
    left.AcceptVisitor(visitor);
    return visitor.m_result;
}

template <class Visitor, class Base, class List>
bool CompareVisitor<Visitor, Base, List>::Compare(const misc::tqAutoPointer<Base>& left,
                                                  const misc::tqAutoPointer<Base>& right) {
    if (left.IsNull() || right.IsNull()) return left.IsNull() && right.IsNull();
    return Compare(*left, *right);
}

template <class Visitor, class Base, class List>
template <class T>
void CompareVisitor<Visitor, Base, List>::OnVisit(const T& left) {
    RightVisitor<T> second(left, m_result);
    m_right.AcceptVisitor(second);
}

template <class Visitor, class Base, class List>
void CompareVisitor<Visitor, Base, List>::OnVisitBase(const Base& visited) {
    OnAbstract(visited);
}

template <class Visitor, class Base, class List>
void CompareVisitor<Visitor, Base, List>::OnAbstract(const Base&) {
    misc::ThrowFailure(u"tqWorkRig::detail_::CompareVisitor::Visit", u"WR: Trying to compare an abstract type.");
}

}  // namespace detail_
}  // namespace tqWorkRig
