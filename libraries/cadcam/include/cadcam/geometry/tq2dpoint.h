// tq2dPoint: a lone point as a two-dimensional item.
#pragma once

#include "cadcam/geometry/tq2dgeometry.h"
#include "cadcam/geometry/tqtpoint2d.h"

namespace cadcam {

/// A point that stands in a contour as an item of its own.
template <class T>
class TQ_EXPORT tq2dPoint : public tq2dGeometry<T> {
public:
    /// The origin.
    tq2dPoint() = default;
    explicit tq2dPoint(const tqTPoint2d<T>& point) : m_point(point) {}
    tq2dPoint(const tq2dPoint& other) = default;
    tq2dPoint& operator=(const tq2dPoint& other) = default;
    ~tq2dPoint() override;

    const tqTPoint2d<T>& GetPoint() const { return m_point; }
    void SetPoint(const tqTPoint2d<T>& point) { m_point = point; }

    void AcceptVisitor(tq2dGeometryConstVisitor<T>& visitor) const override;
    misc::tqAutoPointer<tq2dGeometry<T>> Clone() const override;
    void Scale(const T& factor) override;

    /// Exact: equal coordinates.
    bool operator==(const tq2dPoint& other) const { return m_point == other.m_point; }
    bool operator!=(const tq2dPoint& other) const { return !(*this == other); }

private:
    tqTPoint2d<T> m_point;
};

extern template class tq2dPoint<double>;
extern template class tq2dPoint<float>;

}  // namespace cadcam
