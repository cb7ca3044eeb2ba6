// tq2dArc: the two constructors and their checks, angles on the arc, visiting, cloning and scaling.
#include "cadcam/geometry/tq2darc.h"

#include <algorithm>
#include <cmath>

#include "cadcam/geometry/tq2dgeometryconstvisitor.h"
#include "cadcam/geometry/tqangle.h"
#include "misc/tqexception.h"

namespace cadcam {

namespace {

template <class T>
bool IsFinite(const tqTPoint2d<T>& p) {
    return std::isfinite(p.x) && std::isfinite(p.y);
}

template <class T>
tqTPoint2d<T> OnCircle(const tqTPoint2d<T>& centre, T radius, T degrees) {
    T sine, cosine;
    tqSinCosDegrees(degrees, sine, cosine);
    return tqTPoint2d<T>(centre.x + radius * cosine, centre.y + radius * sine);
}

}  // namespace

template <class T>
T tq2dArc<T>::Tolerance(T size) {
    return static_cast<T>(1e-9) * std::max(static_cast<T>(1), size);
}

template <class T>
tq2dArc<T>::tq2dArc(const tqTPoint2d<T>& centre, T radius, T startAngle, T sweep)
    : m_centre(centre), m_radius(radius), m_sweep(sweep) {
    if (!IsFinite(centre) || !std::isfinite(startAngle))
        throw misc::tqException(0, u"Arc center and start angle must be finite.");
    if (!(radius > 0) || !std::isfinite(radius)) throw misc::tqException(0, u"Arc radius must be positive and finite.");
    if (!(std::fabs(sweep) > 0 && std::fabs(sweep) < 360))
        throw misc::tqException(0, u"Arc sweep must be nonzero and less than 360 degrees in magnitude.");
    m_start = OnCircle(centre, radius, startAngle);
    m_end = OnCircle(centre, radius, startAngle + sweep);
}

template <class T>
tq2dArc<T>::tq2dArc(const tqTPoint2d<T>& start, const tqTPoint2d<T>& end, const tqTPoint2d<T>& centre,
                    tqArcDirection direction)
    : m_centre(centre), m_radius(start.DistanceTo(centre)), m_start(start), m_end(end), m_sweep(0) {
    const T size = std::max({std::fabs(start.x), std::fabs(start.y), std::fabs(end.x), std::fabs(end.y),
                             std::fabs(centre.x), std::fabs(centre.y)});
    // Written so that a NaN anywhere fails the check.
    if (!(std::fabs(m_radius - end.DistanceTo(centre)) <= Tolerance(size)))
        throw misc::tqException(0, u"Provided start/end points to Arc constructor are in different distance from center.");
    if (!(m_radius > 0)) throw misc::tqException(0, u"Arc radius must be positive and finite.");
    const tqTPoint2d<T> toStart = start - centre;
    const tqTPoint2d<T> toEnd = end - centre;
    // atan2 of cross and dot is the turn from start to end in (-180, 180]; exact on quarter and half turns.
    T sweep = tqToDegrees(std::atan2(toStart.Cross(toEnd), toStart.Dot(toEnd)));
    if (direction == tqArcDirection::Counterclockwise && sweep < 0) sweep += 360;
    if (direction == tqArcDirection::Clockwise && sweep > 0) sweep -= 360;
    if (sweep == 0 || !(std::fabs(sweep) < 360))
        throw misc::tqException(0, u"Arc start and end points lie in the same direction from center; a full circle is not an arc.");
    m_sweep = sweep;
}

template <class T>
tq2dArc<T>::~tq2dArc() = default;

template <class T>
T tq2dArc<T>::GetStartAngle() const {
    const T angle = tqToDegrees(std::atan2(m_start.y - m_centre.y, m_start.x - m_centre.x));
    return angle == -180 ? static_cast<T>(180) : angle;
}

template <class T>
tqTPoint2d<T> tq2dArc<T>::PointAtAngle(T degrees) const {
    return OnCircle(m_centre, m_radius, degrees);
}

template <class T>
bool tq2dArc<T>::ContainsAngle(T degrees) const {
    // The turn from the start to the angle, taken the way the arc runs, against the sweep.
    T turn = std::fmod(degrees - GetStartAngle(), static_cast<T>(360));
    if (m_sweep > 0) {
        if (turn < 0) turn += 360;
        return turn <= m_sweep;
    }
    if (turn > 0) turn -= 360;
    return turn >= m_sweep;
}

template <class T>
T tq2dArc<T>::Length() const {
    return m_radius * std::fabs(tqToRadians(m_sweep));
}

template <class T>
void tq2dArc<T>::AcceptVisitor(tq2dGeometryConstVisitor<T>& visitor) const {
    visitor.Visit(*this);
}

template <class T>
misc::tqAutoPointer<tq2dGeometry<T>> tq2dArc<T>::Clone() const {
    return misc::tqAutoPointer<tq2dGeometry<T>>(new tq2dArc(*this));
}

template <class T>
void tq2dArc<T>::Scale(const T& factor) {
    tq2dGeometry<T>::CheckScaleFactor(factor);
    m_centre *= factor;
    m_radius *= factor;
    m_start *= factor;
    m_end *= factor;
}

template <class T>
bool tq2dArc<T>::operator==(const tq2dArc& other) const {
    return m_centre == other.m_centre && m_radius == other.m_radius && m_start == other.m_start &&
           m_end == other.m_end && m_sweep == other.m_sweep;
}

template class tq2dArc<double>;
template class tq2dArc<float>;

}  // namespace cadcam
