// tq2dGeometryConstVisitor: one Visit for each concrete two-dimensional kind, and the list of those kinds.
#pragma once

#include "misc/export.h"
#include "misc/tqtypelist.h"

namespace cadcam {

template <class T>
class tq2dLine;
template <class T>
class tq2dArc;
template <class T>
class tq2dContour;
template <class T>
class tq2dPoint;
template <class T>
class tq2dPolyLine;

/// The closed set of concrete two-dimensional kinds, in the visitor's slot order.
template <class T>
using tq2dGeometryTypes = misc::tqTypeList<tq2dLine<T>, tq2dArc<T>, tq2dContour<T>, tq2dPoint<T>, tq2dPolyLine<T>>;

/// Reads two-dimensional items by kind. Every slot is pure: a user decides for each kind, and one whose Part
/// names only lines, arcs and contours gives the other two the default that its Part states.
template <class T>
class TQ_EXPORT tq2dGeometryConstVisitor {
public:
    virtual ~tq2dGeometryConstVisitor();

    /// A straight segment from start to end.
    virtual void Visit(const tq2dLine<T>& line) = 0;
    /// A circular arc with a signed sweep (positive counterclockwise).
    virtual void Visit(const tq2dArc<T>& arc) = 0;
    /// An ordered list of items; the visitor decides whether to descend into them.
    virtual void Visit(const tq2dContour<T>& contour) = 0;
    /// A lone point.
    virtual void Visit(const tq2dPoint<T>& point) = 0;
    /// A sequence of points joined by straight segments.
    virtual void Visit(const tq2dPolyLine<T>& polyLine) = 0;
};

extern template class tq2dGeometryConstVisitor<double>;
extern template class tq2dGeometryConstVisitor<float>;

}  // namespace cadcam
