// DockableObjectTypeDetector and IsDockableObject: is a dockable object held through its base of a given kind.
#pragma once

#include <type_traits>

#include "misc/export.h"
#include "misc/tqtypedvisitor.h"
#include "tqWorkRig/model/dockableobject.h"
#include "tqWorkRig/model/dockableobjectlist.h"
#include "tqWorkRig/model/dockableobjectvisitor.h"

namespace tqWorkRig {
namespace detail_ {

/// Answers whether the visited object is a T: the slot of T sets the answer, every other slot clears it, so
/// the last visit decides. Instantiated in the library for Holder, Arbor and Tool.
template <class T>
class TQ_EXPORT DockableObjectTypeDetector
    : public misc::detail_::TypedVisitor<DockableObjectTypeDetector<T>, DockableObjectVisitor, DockableObject,
                                         DockableObjectList> {
public:
    DockableObjectTypeDetector() : m_isType(false) {}

    /// True when the last object visited was a T; false before any visit.
    bool GetResult() const { return m_isType; }

    /// The slot of class U.
    template <class U>
    void OnVisit(const U&) {
        m_isType = std::is_same<T, U>::value;
    }
    /// The slot of the base: a class outside the list is no T.
    void OnVisitBase(const DockableObject&) { m_isType = false; }

private:
    bool m_isType;
};

extern template class TQ_EXPORT DockableObjectTypeDetector<Holder>;
extern template class TQ_EXPORT DockableObjectTypeDetector<Arbor>;
extern template class TQ_EXPORT DockableObjectTypeDetector<Tool>;

}  // namespace detail_

/// True when object is of kind T (Holder, Arbor or Tool).
template <class T>
bool IsDockableObject(const DockableObject& object) {
    detail_::DockableObjectTypeDetector<T> detector;
    object.AcceptVisitor(detector);
    return detector.GetResult();
}

}  // namespace tqWorkRig
