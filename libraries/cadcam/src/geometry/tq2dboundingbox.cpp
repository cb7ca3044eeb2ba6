// tq2dBoundingBox: growing by points, lines, arc extremes and items of every kind.
#include "cadcam/geometry/tq2dboundingbox.h"

#include <algorithm>
#include <cmath>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dcontour.h"
#include "cadcam/geometry/tq2dgeometryconstvisitor.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/geometry/tq2dpoint.h"
#include "cadcam/geometry/tq2dpolyline.h"

namespace cadcam {

namespace {

template <class T>
class BoxAdder final : public tq2dGeometryConstVisitor<T> {
public:
    explicit BoxAdder(tq2dBoundingBox<T>& box) : m_box(box) {}

    void Visit(const tq2dLine<T>& line) override { m_box.Add(line); }
    void Visit(const tq2dArc<T>& arc) override { m_box.Add(arc); }
    void Visit(const tq2dContour<T>& contour) override {
        for (const auto& item : contour) item->AcceptVisitor(*this);
    }
    void Visit(const tq2dPoint<T>& point) override { m_box.Add(point.GetPoint()); }
    void Visit(const tq2dPolyLine<T>& polyLine) override {
        for (const auto& point : polyLine.GetPoints()) m_box.Add(point);
    }

private:
    tq2dBoundingBox<T>& m_box;
};

}  // namespace

template <class T>
T tq2dBoundingBox<T>::GetLargestAbsoluteCoordinate() const {
    return std::max({std::fabs(m_min.x), std::fabs(m_min.y), std::fabs(m_max.x), std::fabs(m_max.y)});
}

template <class T>
void tq2dBoundingBox<T>::Add(const tqTPoint2d<T>& point) {
    if (!m_initialised) {
        m_min = m_max = point;
        m_initialised = true;
        return;
    }
    m_min.x = std::min(m_min.x, point.x);
    m_min.y = std::min(m_min.y, point.y);
    m_max.x = std::max(m_max.x, point.x);
    m_max.y = std::max(m_max.y, point.y);
}

template <class T>
void tq2dBoundingBox<T>::Add(const tq2dBoundingBox& other) {
    if (!other.m_initialised) return;
    Add(other.m_min);
    Add(other.m_max);
}

template <class T>
void tq2dBoundingBox<T>::Add(const tq2dLine<T>& line) {
    Add(line.GetStart());
    Add(line.GetEnd());
}

template <class T>
void tq2dBoundingBox<T>::Add(const tq2dArc<T>& arc) {
    Add(arc.GetStart());
    Add(arc.GetEnd());
    for (int quarter = 0; quarter < 4; ++quarter) {
        const T angle = static_cast<T>(90 * quarter);
        if (arc.ContainsAngle(angle)) Add(arc.PointAtAngle(angle));
    }
}

template <class T>
void tq2dBoundingBox<T>::Add(const tq2dGeometry<T>& item) {
    BoxAdder<T> adder(*this);
    item.AcceptVisitor(adder);
}

template class tq2dBoundingBox<double>;
template class tq2dBoundingBox<float>;

}  // namespace cadcam
