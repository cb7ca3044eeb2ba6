// tq2dGeometry: the abstract base of every two-dimensional item of profiles and contours.
#pragma once

#include "misc/export.h"
#include "misc/tqautopointer.h"

namespace cadcam {

template <class T>
class tq2dGeometryConstVisitor;

/// A two-dimensional item. What differs by kind goes through tq2dGeometryConstVisitor.
template <class T>
class TQ_EXPORT tq2dGeometry {
public:
    virtual ~tq2dGeometry();

    /// Calls the visitor's Visit for this item's concrete kind.
    virtual void AcceptVisitor(tq2dGeometryConstVisitor<T>& visitor) const = 0;
    /// A deep copy of the concrete kind.
    virtual misc::tqAutoPointer<tq2dGeometry<T>> Clone() const = 0;
    /// Multiplies every length (coordinates and radii) by factor, which must be positive and finite
    /// (tqRangeException otherwise); angles and directions stay.
    virtual void Scale(const T& factor) = 0;

    /// Exact equality across kinds: the same concrete kind, equal by that kind's operator==.
    bool IsEqual(const tq2dGeometry& other) const;
    friend bool operator==(const tq2dGeometry& a, const tq2dGeometry& b) { return a.IsEqual(b); }
    friend bool operator!=(const tq2dGeometry& a, const tq2dGeometry& b) { return !a.IsEqual(b); }

protected:
    tq2dGeometry() = default;
    tq2dGeometry(const tq2dGeometry&) = default;
    tq2dGeometry& operator=(const tq2dGeometry&) = default;

    /// Throws tqRangeException "Scale factor must be positive and finite" unless 0 < factor < infinity.
    static void CheckScaleFactor(const T& factor);
};

extern template class tq2dGeometry<double>;
extern template class tq2dGeometry<float>;

}  // namespace cadcam
