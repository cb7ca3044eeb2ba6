// tq2dArc: a circular arc in the plane with a signed sweep in degrees.
#pragma once

#include "cadcam/geometry/tq2dgeometry.h"
#include "cadcam/geometry/tqtpoint2d.h"

namespace cadcam {

/// The way an arc runs from its start to its end.
enum class tqArcDirection { Clockwise = -1, Counterclockwise = 1 };

/// An arc of a circle: centre, radius, start and end point, and the sweep, the signed angle in degrees from
/// start to end (positive counterclockwise, never 0, less than 360 in magnitude: a full circle is not one arc).
/// Construction failures throw misc::tqException with code 0.
template <class T>
class TQ_EXPORT tq2dArc : public tq2dGeometry<T> {
public:
    /// ε(S) = 1e-9·max(1, S): how far the end may lie off the start's circle, S the largest absolute coordinate.
    static T Tolerance(T size);

    /// From centre, radius, start angle and signed sweep, both in degrees. Needs a finite centre and start
    /// angle, a radius > 0 and 0 < |sweep| < 360; the sweep is kept exactly as given.
    tq2dArc(const tqTPoint2d<T>& centre, T radius, T startAngle, T sweep);
    /// From start, end and centre, running in the given direction. The radius is the start's distance and the
    /// end keeps its coordinates; the two distances may differ by Tolerance of the three points' largest
    /// coordinate. Fails beyond that (or on a NaN), for a start on the centre, and when start and end lie in the
    /// same direction from the centre (no arc, or a full circle).
    tq2dArc(const tqTPoint2d<T>& start, const tqTPoint2d<T>& end, const tqTPoint2d<T>& centre,
            tqArcDirection direction);
    tq2dArc(const tq2dArc& other) = default;
    tq2dArc& operator=(const tq2dArc& other) = default;
    ~tq2dArc() override;

    const tqTPoint2d<T>& GetCentre() const { return m_centre; }
    T GetRadius() const { return m_radius; }
    const tqTPoint2d<T>& GetStart() const { return m_start; }
    const tqTPoint2d<T>& GetEnd() const { return m_end; }
    /// The signed sweep in degrees, negative when the arc runs clockwise.
    T GetSweep() const { return m_sweep; }
    tqArcDirection GetDirection() const {
        return m_sweep > 0 ? tqArcDirection::Counterclockwise : tqArcDirection::Clockwise;
    }
    bool IsCounterclockwise() const { return m_sweep > 0; }

    /// The direction of the start from the centre, in degrees in (-180, 180].
    T GetStartAngle() const;
    /// The start angle plus the sweep (so it may lie outside (-180, 180]).
    T GetEndAngle() const { return GetStartAngle() + m_sweep; }
    /// The start angle plus half the sweep.
    T GetMidAngle() const { return GetStartAngle() + m_sweep / 2; }
    /// The point of the arc's circle in the direction given in degrees; exact on quarter turns.
    tqTPoint2d<T> PointAtAngle(T degrees) const;
    /// Whether the direction given in degrees (any turn) lies on the arc, its two ends included; no tolerance.
    bool ContainsAngle(T degrees) const;
    /// The arc length, radius times the sweep's magnitude in radians.
    T Length() const;

    void AcceptVisitor(tq2dGeometryConstVisitor<T>& visitor) const override;
    misc::tqAutoPointer<tq2dGeometry<T>> Clone() const override;
    void Scale(const T& factor) override;

    /// Exact: equal centre, radius, start, end and sweep.
    bool operator==(const tq2dArc& other) const;
    bool operator!=(const tq2dArc& other) const { return !(*this == other); }

private:
    tqTPoint2d<T> m_centre;
    T m_radius;
    tqTPoint2d<T> m_start;
    tqTPoint2d<T> m_end;
    T m_sweep;
};

extern template class tq2dArc<double>;
extern template class tq2dArc<float>;

}  // namespace cadcam
