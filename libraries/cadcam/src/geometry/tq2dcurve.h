// tq2dCurve: a line or an arc seen through one small interface, for the kernel's pairwise queries.
#pragma once

#include <cmath>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dgeometryconstvisitor.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/geometry/tqangle.h"

namespace cadcam {
namespace detail_ {

/// Exactly one of line and arc is set for a line or an arc; neither for any other kind of item.
template <class T>
struct tq2dCurve {
    const tq2dLine<T>* line = nullptr;
    const tq2dArc<T>* arc = nullptr;

    bool IsValid() const { return line != nullptr || arc != nullptr; }
    const tqTPoint2d<T>& GetStart() const { return line != nullptr ? line->GetStart() : arc->GetStart(); }
    const tqTPoint2d<T>& GetEnd() const { return line != nullptr ? line->GetEnd() : arc->GetEnd(); }
    /// The point halfway along the item.
    tqTPoint2d<T> GetMiddle() const {
        if (line != nullptr) return (line->GetStart() + line->GetEnd()) * static_cast<T>(0.5);
        return arc->PointAtAngle(arc->GetMidAngle());
    }
};

/// Finds out whether an item is a line or an arc.
template <class T>
class tq2dCurveFinder final : public tq2dGeometryConstVisitor<T> {
public:
    tq2dCurve<T> m_curve;

    void Visit(const tq2dLine<T>& line) override { m_curve.line = &line; }
    void Visit(const tq2dArc<T>& arc) override { m_curve.arc = &arc; }
    void Visit(const tq2dContour<T>&) override {}
    void Visit(const tq2dPoint<T>&) override {}
    void Visit(const tq2dPolyLine<T>&) override {}
};

/// The item as a curve; not valid when it is neither a line nor an arc.
template <class T>
tq2dCurve<T> tqCurveOf(const tq2dGeometry<T>& item) {
    tq2dCurveFinder<T> finder;
    item.AcceptVisitor(finder);
    return finder.m_curve;
}

/// The direction of a vector in degrees, as the arc class measures its angles.
template <class T>
T tqDirectionOf(const tqTPoint2d<T>& v) {
    return tqToDegrees(std::atan2(v.y, v.x));
}

}  // namespace detail_
}  // namespace cadcam
