// TypedVisitor: a visitor interface implemented once for every class of a closed type list.
#pragma once

#include <tuple>

#include "misc/tqtypelist.h"

namespace misc {
namespace detail_ {

/// Implements the slot Visit(const T&) by handing the visited object to Derived::OnVisit.
template <class Derived, class T, class Next>
class OneVisitFunctionImplementer : public Next {
public:
    using Next::Visit;
    void Visit(const T& visited) override { static_cast<Derived&>(*this).OnVisit(visited); }
};

/// Implements the slot of the abstract base by handing it to Derived::OnVisitBase.
template <class Derived, class Visitor, class Base>
class BaseVisitFunctionImplementer : public Visitor {
public:
    using Visitor::Visit;
    void Visit(const Base& visited) override { static_cast<Derived&>(*this).OnVisitBase(visited); }
};

template <class Derived, class Visitor, class Base, class List>
struct TypedVisitorChain;

template <class Derived, class Visitor, class Base>
struct TypedVisitorChain<Derived, Visitor, Base, misc::tqTypeList<>> {
    using type = BaseVisitFunctionImplementer<Derived, Visitor, Base>;
};

template <class Derived, class Visitor, class Base, class T, class... Rest>
struct TypedVisitorChain<Derived, Visitor, Base, misc::tqTypeList<T, Rest...>> {
    using type = OneVisitFunctionImplementer<Derived, T,
                                             typename TypedVisitorChain<Derived, Visitor, Base,
                                                                        misc::tqTypeList<Rest...>>::type>;
};

/// Derives from Visitor with one slot per class T of List, each calling Derived::OnVisit(const T&), and the
/// base slot calling Derived::OnVisitBase(const Base&). A slot of Visitor with no class in List stays pure, so
/// `!std::is_abstract<Derived>` checks that List covers the visitor; a class of List without a slot fails to
/// compile at `override`.
template <class Derived, class Visitor, class Base, class List>
using TypedVisitor = typename TypedVisitorChain<Derived, Visitor, Base, List>::type;

/// Keeps an out-of-line Derived::OnVisit<T> for every T of the list in the library, so that a host whose call of
/// a slot is resolved at compile time links. Called once from the visitor's out-of-line constructor.
template <class Derived, class... Ts>
void KeepSlots(tqTypeList<Ts...>*) {
    [[gnu::used]] static const auto slots = std::make_tuple(&Derived::template OnVisit<Ts>...);
    static_cast<void>(slots);
}

}  // namespace detail_
}  // namespace misc
