// tq2dLine: a straight segment in the plane.
#pragma once

#include "cadcam/geometry/tq2dgeometry.h"
#include "cadcam/geometry/tqtpoint2d.h"

namespace cadcam {

/// A segment from start to end; a zero-length segment is allowed (profiles drop them after assembly).
template <class T>
class TQ_EXPORT tq2dLine : public tq2dGeometry<T> {
public:
    /// A segment from the origin to the origin.
    tq2dLine() = default;
    tq2dLine(const tqTPoint2d<T>& start, const tqTPoint2d<T>& end) : m_start(start), m_end(end) {}
    tq2dLine(const tq2dLine& other) = default;
    tq2dLine& operator=(const tq2dLine& other) = default;
    ~tq2dLine() override;

    const tqTPoint2d<T>& GetStart() const { return m_start; }
    void SetStart(const tqTPoint2d<T>& start) { m_start = start; }
    const tqTPoint2d<T>& GetEnd() const { return m_end; }
    void SetEnd(const tqTPoint2d<T>& end) { m_end = end; }
    /// The distance from start to end.
    T Length() const { return m_start.DistanceTo(m_end); }

    void AcceptVisitor(tq2dGeometryConstVisitor<T>& visitor) const override;
    misc::tqAutoPointer<tq2dGeometry<T>> Clone() const override;
    void Scale(const T& factor) override;

    /// Exact: equal start and end.
    bool operator==(const tq2dLine& other) const { return m_start == other.m_start && m_end == other.m_end; }
    bool operator!=(const tq2dLine& other) const { return !(*this == other); }

private:
    tqTPoint2d<T> m_start;
    tqTPoint2d<T> m_end;
};

extern template class tq2dLine<double>;
extern template class tq2dLine<float>;

}  // namespace cadcam
