// Utils::DockableObjectComparer: equality of dockable objects held through their base, by dispatch.
#pragma once

#include <type_traits>

#include "misc/export.h"
#include "misc/tqtypedvisitor.h"
#include "tqWorkRig/model/dockableobject.h"
#include "tqWorkRig/model/dockableobjectlist.h"
#include "tqWorkRig/model/dockableobjectvisitor.h"

namespace tqWorkRig {
namespace Utils {

/// Holds a T and is accepted by another object: when that object is a T too, the answer is T's operator==
/// with the visited object on the left and the held one on the right; any other kind answers false. No cast
/// of the visited object is needed. Instantiated in the library for Tool, Holder, Arbor, ToolAdapter,
/// StockAdapter and Stock; ToolAssembly's instantiation stands with ToolAssembly.
template <class T>
class TQ_EXPORT DockableObjectComparer
    : public misc::detail_::TypedVisitor<DockableObjectComparer<T>, DockableObjectVisitor, DockableObject,
                                         DockableObjectList> {
public:
    /// Holds a reference to object, which must outlive the comparer.
    explicit DockableObjectComparer(const T& object) : m_result(false), m_object(object) {}
    DockableObjectComparer(const DockableObjectComparer&) = delete;
    DockableObjectComparer& operator=(const DockableObjectComparer&) = delete;

    /// The answer of the last visit; false before any.
    bool GetResult() const { return m_result; }

    /// The slot of class U.
    template <class U>
    void OnVisit(const U& visited) {
        if constexpr (std::is_same<T, U>::value) {
            m_result = visited == m_object;
        } else {
            m_result = false;
        }
    }
    /// The slot of the base: a class outside the list equals nothing.
    void OnVisitBase(const DockableObject&) { m_result = false; }

private:
    bool m_result;
    const T& m_object;
};

/// The comparer of two objects whose classes are both unknown: it holds the left object and is accepted by the
/// right one. A right object whose own comparison is under way counts as equal, which ends the recursion
/// between frames and parents; otherwise a second dispatch on the left object compares the two with their
/// class's operator== when the classes agree, and answers false when they differ.
template <>
class TQ_EXPORT DockableObjectComparer<DockableObject>
    : public misc::detail_::TypedVisitor<DockableObjectComparer<DockableObject>, DockableObjectVisitor, DockableObject,
                                         DockableObjectList> {
public:
    /// Holds a reference to left, which must outlive the comparer.
    explicit DockableObjectComparer(const DockableObject& left);
    ~DockableObjectComparer() override;
    DockableObjectComparer(const DockableObjectComparer&) = delete;
    DockableObjectComparer& operator=(const DockableObjectComparer&) = delete;

    /// The answer of the last visit; false before any.
    bool GetResult() const { return m_result; }

    /// The slot of class U, the right object's class (defined in the source for every class of the list).
    template <class U>
    void OnVisit(const U& right);
    /// The slot of the base: a class outside the list equals nothing.
    void OnVisitBase(const DockableObject& right);

private:
    bool m_result;
    const DockableObject& m_left;
};

extern template class TQ_EXPORT DockableObjectComparer<Tool>;
extern template class TQ_EXPORT DockableObjectComparer<Holder>;
extern template class TQ_EXPORT DockableObjectComparer<Arbor>;
extern template class TQ_EXPORT DockableObjectComparer<ToolAdapter>;
extern template class TQ_EXPORT DockableObjectComparer<StockAdapter>;
extern template class TQ_EXPORT DockableObjectComparer<Stock>;

}  // namespace Utils
}  // namespace tqWorkRig
