// tq2dIntersection: where two lines or arcs meet, within a tolerance.
#pragma once

#include <vector>

#include "cadcam/geometry/tqtpoint2d.h"
#include "misc/export.h"

namespace cadcam {

template <class T>
class tq2dGeometry;

/// The meeting of two items, each a line or an arc: the exact line-line, line-circle and circle-circle
/// solutions kept where they lie within the tolerance of both items, ends of one item that lie within the
/// tolerance of the other, and the stretches that collinear lines or arcs of one circle share. A near tangency
/// (the carriers' gap within the tolerance) gives one point, the contact.
template <class T>
class TQ_EXPORT tq2dIntersection {
public:
    /// A shared stretch, from its end met first to its end met last when walking along the first item.
    struct Stretch {
        tqTPoint2d<T> from;
        tqTPoint2d<T> to;
    };

    /// Intersects a with b. Throws tqException "Intersection is defined between lines and arcs only." for any
    /// other kind of item, and tqRangeException "Intersection tolerance must be finite and not negative".
    tq2dIntersection(const tq2dGeometry<T>& a, const tq2dGeometry<T>& b, T tolerance);

    /// Isolated meeting points, no two of them within twice the tolerance.
    const std::vector<tqTPoint2d<T>>& GetPoints() const { return m_points; }
    /// Shared stretches longer than the tolerance.
    const std::vector<Stretch>& GetOverlaps() const { return m_overlaps; }
    /// Whether the items do not meet.
    bool IsEmpty() const { return m_points.empty() && m_overlaps.empty(); }
    /// Whether every meeting point and both ends of every stretch lie within distance of point; true when empty.
    bool LiesWithin(const tqTPoint2d<T>& point, T distance) const;

private:
    std::vector<tqTPoint2d<T>> m_points;
    std::vector<Stretch> m_overlaps;
};

extern template class TQ_EXPORT tq2dIntersection<double>;
extern template class TQ_EXPORT tq2dIntersection<float>;

}  // namespace cadcam
