// tq2dBoundingBox: the axis-aligned box of points, lines, arcs and contours in the plane.
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

/// Grows to take in what is added; starts uninitialised, holding nothing.
template <class T>
class TQ_EXPORT tq2dBoundingBox {
public:
    /// An uninitialised box.
    tq2dBoundingBox() = default;

    /// Whether anything has been added.
    bool IsInitialised() const { return m_initialised; }
    /// The lower left corner; the origin while uninitialised.
    const tqTPoint2d<T>& GetMin() const { return m_min; }
    /// The upper right corner; the origin while uninitialised.
    const tqTPoint2d<T>& GetMax() const { return m_max; }
    /// The largest absolute coordinate of the two corners; 0 while uninitialised.
    T GetLargestAbsoluteCoordinate() const;

    /// Takes in a point.
    void Add(const tqTPoint2d<T>& point);
    /// Takes in another box; an uninitialised one adds nothing.
    void Add(const tq2dBoundingBox& other);
    /// Takes in both ends of a line.
    void Add(const tq2dLine<T>& line);
    /// Takes in the ends of an arc and its points at 0, 90, 180 and 270 degrees that lie within its sweep.
    void Add(const tq2dArc<T>& arc);
    /// Takes in an item of any kind: a contour item by item, a point, the points of a polyline.
    void Add(const tq2dGeometry<T>& item);

    /// The box of one item.
    template <class Item>
    static tq2dBoundingBox Of(const Item& item) {
        tq2dBoundingBox box;
        box.Add(item);
        return box;
    }

    /// Exact: both uninitialised, or both initialised with equal corners.
    bool operator==(const tq2dBoundingBox& other) const {
        return m_initialised == other.m_initialised && m_min == other.m_min && m_max == other.m_max;
    }
    bool operator!=(const tq2dBoundingBox& other) const { return !(*this == other); }

private:
    bool m_initialised = false;
    tqTPoint2d<T> m_min;
    tqTPoint2d<T> m_max;
};

extern template class TQ_EXPORT tq2dBoundingBox<double>;
extern template class TQ_EXPORT tq2dBoundingBox<float>;

}  // namespace cadcam
