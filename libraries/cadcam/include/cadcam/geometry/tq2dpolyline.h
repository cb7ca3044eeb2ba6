// tq2dPolyLine: a sequence of points joined by straight segments.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "cadcam/geometry/tq2dgeometry.h"
#include "cadcam/geometry/tqtpoint2d.h"

namespace cadcam {

/// Points in order; consecutive points are joined by straight segments.
template <class T>
class TQ_EXPORT tq2dPolyLine : public tq2dGeometry<T> {
public:
    /// No points.
    tq2dPolyLine() = default;
    explicit tq2dPolyLine(std::vector<tqTPoint2d<T>> points) : m_points(std::move(points)) {}
    tq2dPolyLine(const tq2dPolyLine& other) = default;
    tq2dPolyLine& operator=(const tq2dPolyLine& other) = default;
    ~tq2dPolyLine() override;

    const std::vector<tqTPoint2d<T>>& GetPoints() const { return m_points; }
    std::size_t GetCount() const { return m_points.size(); }
    /// Adds a point at the end.
    void Append(const tqTPoint2d<T>& point) { m_points.push_back(point); }

    void AcceptVisitor(tq2dGeometryConstVisitor<T>& visitor) const override;
    misc::tqAutoPointer<tq2dGeometry<T>> Clone() const override;
    void Scale(const T& factor) override;

    /// Exact: the same points in the same order.
    bool operator==(const tq2dPolyLine& other) const { return m_points == other.m_points; }
    bool operator!=(const tq2dPolyLine& other) const { return !(*this == other); }

private:
    std::vector<tqTPoint2d<T>> m_points;
};

extern template class tq2dPolyLine<double>;
extern template class tq2dPolyLine<float>;

}  // namespace cadcam
