// tq2dContourProperties: continuity, closure, self-intersection and area of a contour of lines and arcs.
#pragma once

#include <cstddef>
#include <vector>

#include "cadcam/geometry/tq2dboundingbox.h"
#include "cadcam/geometry/tq2dcontour.h"
#include "cadcam/geometry/tqtpoint2d.h"

namespace cadcam {

template <class T>
class tq2dLine;
template <class T>
class tq2dArc;

/// Reads a contour whose items are all finite lines and arcs, with the tolerance ε of its own size.
/// Shares the contour's items, so they must not change while the object is used.
template <class T>
class TQ_EXPORT tq2dContourProperties {
public:
    /// ε(S) = 1e-9·max(1, S), S a largest absolute coordinate. In single precision the factor is raised to
    /// 32 units of float rounding, since 1e-9 lies below what a float can tell apart.
    static T Tolerance(T size);
    /// Whether every item is a tq2dLine or a tq2dArc and every coordinate, radius and sweep is finite.
    static bool IsMadeOfFiniteLinesAndArcs(const tq2dContour<T>& contour);

    /// Throws tqException "Contour items must be finite lines and arcs." unless IsMadeOfFiniteLinesAndArcs.
    explicit tq2dContourProperties(const tq2dContour<T>& contour);

    std::size_t GetCount() const { return m_items.size(); }
    /// ε over the largest absolute coordinate of the items' boxes and arc centres.
    T GetTolerance() const { return m_tolerance; }
    /// The box of the whole contour (arc extremes included); uninitialised when empty.
    const tq2dBoundingBox<T>& GetBox() const { return m_box; }
    /// The start of item index (no range check beyond an assertion).
    const tqTPoint2d<T>& GetStart(std::size_t index) const;
    /// The end of item index.
    const tqTPoint2d<T>& GetEnd(std::size_t index) const;
    /// The box of item index.
    const tq2dBoundingBox<T>& GetItemBox(std::size_t index) const;
    /// Item index as an arc, or null when it is a line.
    const tq2dArc<T>* GetArc(std::size_t index) const;

    /// Whether each item starts within ε of the previous one's end (an empty contour is continuous).
    bool IsContinuous() const;
    /// Whether the contour has items and the last one ends within ε of the first one's start.
    bool IsClosed() const;
    /// Whether no two items meet apart from their joints: items that are not neighbours stay farther than ε
    /// apart, and neighbours meet only at their shared point. When closed is true the last and the first
    /// items are neighbours too.
    bool IsSimple(bool closed) const;
    /// The signed area (positive counterclockwise) enclosed by the items and the straight segment from the
    /// last end back to the first start; arcs count their circular segments. 0 when empty.
    T GetSignedArea() const;

private:
    struct Entry {
        const tq2dLine<T>* line;
        const tq2dArc<T>* arc;
        tq2dBoundingBox<T> box;
    };

    tq2dContour<T> m_contour;
    std::vector<Entry> m_items;
    tq2dBoundingBox<T> m_box;
    T m_tolerance;
};

extern template class TQ_EXPORT tq2dContourProperties<double>;
extern template class TQ_EXPORT tq2dContourProperties<float>;

/// Whether a contour of lines and arcs is continuous, closed and not self-intersecting, all within ε of its
/// size. An empty contour, a contour holding any other kind of item or a value that is not finite, and a
/// lone line are not.
template <class T>
TQ_EXPORT bool tqIsClosedContinuousAndSimple(const tq2dContour<T>& contour);

extern template bool tqIsClosedContinuousAndSimple<double>(const tq2dContour<double>& contour);
extern template bool tqIsClosedContinuousAndSimple<float>(const tq2dContour<float>& contour);

}  // namespace cadcam
