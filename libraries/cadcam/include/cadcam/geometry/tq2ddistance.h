// tq2dDistance: the smallest distance between points, lines and arcs.
#pragma once

#include "cadcam/geometry/tqtpoint2d.h"
#include "misc/export.h"

namespace cadcam {

template <class T>
class tq2dGeometry;
template <class T>
class tq2dLine;
template <class T>
class tq2dArc;

/// Exact minimum distances (no tolerance): 0 when the items cross or touch. The item overloads take lines
/// and arcs and throw tqException "Distance is defined between lines and arcs only." for any other kind.
template <class T>
class TQ_EXPORT tq2dDistance {
public:
    tq2dDistance() = delete;

    /// From a point to the nearest point of a segment (a zero-length one is its start).
    static T PointToSegment(const tqTPoint2d<T>& point, const tqTPoint2d<T>& start, const tqTPoint2d<T>& end);
    /// From a point to the nearest point of a line.
    static T PointToLine(const tqTPoint2d<T>& point, const tq2dLine<T>& line);
    /// From a point to the nearest point of an arc.
    static T PointToArc(const tqTPoint2d<T>& point, const tq2dArc<T>& arc);
    /// From a point to the nearest point of a line or an arc.
    static T PointToItem(const tqTPoint2d<T>& point, const tq2dGeometry<T>& item);

    /// Between two lines.
    static T Between(const tq2dLine<T>& a, const tq2dLine<T>& b);
    /// Between a line and an arc.
    static T Between(const tq2dLine<T>& a, const tq2dArc<T>& b);
    /// Between an arc and a line.
    static T Between(const tq2dArc<T>& a, const tq2dLine<T>& b) { return Between(b, a); }
    /// Between two arcs.
    static T Between(const tq2dArc<T>& a, const tq2dArc<T>& b);
    /// Between two items, each a line or an arc.
    static T Between(const tq2dGeometry<T>& a, const tq2dGeometry<T>& b);
};

extern template class TQ_EXPORT tq2dDistance<double>;
extern template class TQ_EXPORT tq2dDistance<float>;

}  // namespace cadcam
