// tq2dContourProperties: pairwise checks of a contour's items with the tolerance of its size.
#include "cadcam/geometry/tq2dcontourproperties.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "cadcam/geometry/tq2ddistance.h"
#include "cadcam/geometry/tqangle.h"
#include "geometry/tq2dcurve.h"
#include "misc/tqexception.h"

namespace cadcam {

namespace {

template <class T>
using Point = tqTPoint2d<T>;

template <class T>
bool IsFinite(const Point<T>& p) {
    return std::isfinite(p.x) && std::isfinite(p.y);
}

template <class T>
bool IsFinite(const detail_::tq2dCurve<T>& curve) {
    if (curve.line != nullptr) return IsFinite(curve.line->GetStart()) && IsFinite(curve.line->GetEnd());
    const tq2dArc<T>& arc = *curve.arc;
    return IsFinite(arc.GetCentre()) && IsFinite(arc.GetStart()) && IsFinite(arc.GetEnd()) &&
           std::isfinite(arc.GetRadius()) && std::isfinite(arc.GetSweep());
}

template <class T>
T DistanceTo(const Point<T>& p, const detail_::tq2dCurve<T>& c) {
    return c.line != nullptr ? tq2dDistance<T>::PointToLine(p, *c.line) : tq2dDistance<T>::PointToArc(p, *c.arc);
}

template <class T>
T DistanceBetween(const detail_::tq2dCurve<T>& a, const detail_::tq2dCurve<T>& b) {
    if (a.line != nullptr)
        return b.line != nullptr ? tq2dDistance<T>::Between(*a.line, *b.line) : tq2dDistance<T>::Between(*a.line, *b.arc);
    return b.line != nullptr ? tq2dDistance<T>::Between(*a.arc, *b.line) : tq2dDistance<T>::Between(*a.arc, *b.arc);
}

/// The other crossing of the carriers of two items through the joint p, found from p without a square root,
/// so that items meeting tangentially give p back instead of two noisy roots.
template <class T>
std::optional<Point<T>> SecondCrossing(const detail_::tq2dCurve<T>& a, const detail_::tq2dCurve<T>& b,
                                       const Point<T>& p, T eps) {
    if (a.line != nullptr && b.line != nullptr) return std::nullopt;
    if (a.arc != nullptr && b.arc != nullptr) {
        const Point<T> v = b.arc->GetCentre() - a.arc->GetCentre();
        const T d = v.Length();
        if (!(d > eps)) return std::nullopt;
        // The mirror image of p in the line of centres.
        const Point<T> w = v * (1 / d), rel = p - a.arc->GetCentre();
        return a.arc->GetCentre() + w * (2 * rel.Dot(w)) - rel;
    }
    const tq2dLine<T>& line = a.line != nullptr ? *a.line : *b.line;
    const tq2dArc<T>& arc = a.arc != nullptr ? *a.arc : *b.arc;
    const Point<T> d = line.GetEnd() - line.GetStart();
    const T length = d.Length();
    if (!(length > 0)) return std::nullopt;
    const Point<T> u = d * (1 / length);
    const Point<T> onLine = line.GetStart() + u * (p - line.GetStart()).Dot(u);
    // With p on the circle the roots of |onLine + t·u - c|² = r² are 0 and -2·u·(onLine - c).
    return onLine + u * (-2 * u.Dot(onLine - arc.GetCentre()));
}

/// Whether neighbours a and b meet anywhere but at their joints: an end or the middle of one lying on the
/// other (folding back, overlapping along one carrier or one circle), or the carriers' second crossing
/// lying on both.
template <class T>
bool MeetElsewhere(const detail_::tq2dCurve<T>& a, const detail_::tq2dCurve<T>& b, const std::vector<Point<T>>& joints,
                   T eps) {
    const auto isJoint = [&](const Point<T>& q) {
        return std::any_of(joints.begin(), joints.end(), [&](const Point<T>& j) { return q.DistanceTo(j) <= eps; });
    };
    for (const Point<T>& q : {a.GetStart(), a.GetEnd(), a.GetMiddle()})
        if (!isJoint(q) && DistanceTo(q, b) <= eps) return true;
    for (const Point<T>& q : {b.GetStart(), b.GetEnd(), b.GetMiddle()})
        if (!isJoint(q) && DistanceTo(q, a) <= eps) return true;
    const std::optional<Point<T>> q = SecondCrossing(a, b, joints.front(), eps);
    return q && !isJoint(*q) && DistanceTo(*q, a) <= eps && DistanceTo(*q, b) <= eps;
}

template <class T, class Entry>
detail_::tq2dCurve<T> CurveOf(const Entry& entry) {
    detail_::tq2dCurve<T> curve;
    curve.line = entry.line;
    curve.arc = entry.arc;
    return curve;
}

}  // namespace

template <class T>
T tq2dContourProperties<T>::Tolerance(T size) {
    const T factor = std::max(static_cast<T>(1e-9), 32 * std::numeric_limits<T>::epsilon());
    return factor * std::max(static_cast<T>(1), size);
}

template <class T>
bool tq2dContourProperties<T>::IsMadeOfFiniteLinesAndArcs(const tq2dContour<T>& contour) {
    for (const auto& item : contour) {
        const detail_::tq2dCurve<T> curve = detail_::tqCurveOf(*item);
        if (!curve.IsValid() || !IsFinite(curve)) return false;
    }
    return true;
}

template <class T>
tq2dContourProperties<T>::tq2dContourProperties(const tq2dContour<T>& contour) : m_contour(contour) {
    if (!IsMadeOfFiniteLinesAndArcs(contour))
        throw misc::tqException(0, u"Contour items must be finite lines and arcs.");
    T size = 0;
    m_items.reserve(contour.GetCount());
    for (const auto& item : m_contour) {
        const detail_::tq2dCurve<T> curve = detail_::tqCurveOf(*item);
        Entry entry{curve.line, curve.arc, tq2dBoundingBox<T>::Of(*item)};
        if (curve.arc != nullptr)
            size = std::max({size, std::fabs(curve.arc->GetCentre().x), std::fabs(curve.arc->GetCentre().y)});
        m_box.Add(entry.box);
        m_items.push_back(entry);
    }
    // Arc centres count, as they do for the arc's own three-point tolerance.
    m_tolerance = Tolerance(std::max(size, m_box.GetLargestAbsoluteCoordinate()));
}

template <class T>
const tqTPoint2d<T>& tq2dContourProperties<T>::GetStart(std::size_t index) const {
    TQ_ASSERT(index < m_items.size());
    return CurveOf<T>(m_items[index]).GetStart();
}

template <class T>
const tqTPoint2d<T>& tq2dContourProperties<T>::GetEnd(std::size_t index) const {
    TQ_ASSERT(index < m_items.size());
    return CurveOf<T>(m_items[index]).GetEnd();
}

template <class T>
const tq2dBoundingBox<T>& tq2dContourProperties<T>::GetItemBox(std::size_t index) const {
    TQ_ASSERT(index < m_items.size());
    return m_items[index].box;
}

template <class T>
const tq2dArc<T>* tq2dContourProperties<T>::GetArc(std::size_t index) const {
    TQ_ASSERT(index < m_items.size());
    return m_items[index].arc;
}

template <class T>
bool tq2dContourProperties<T>::IsContinuous() const {
    for (std::size_t i = 1; i < m_items.size(); ++i)
        if (!(GetStart(i).DistanceTo(GetEnd(i - 1)) <= m_tolerance)) return false;
    return true;
}

template <class T>
bool tq2dContourProperties<T>::IsClosed() const {
    return !m_items.empty() && GetEnd(m_items.size() - 1).DistanceTo(GetStart(0)) <= m_tolerance;
}

template <class T>
bool tq2dContourProperties<T>::IsSimple(bool closed) const {
    const std::size_t count = m_items.size();
    for (std::size_t i = 0; i < count; ++i) {
        const detail_::tq2dCurve<T> a = CurveOf<T>(m_items[i]);
        for (std::size_t j = i + 1; j < count; ++j) {
            const detail_::tq2dCurve<T> b = CurveOf<T>(m_items[j]);
            if (j == i + 1) {
                std::vector<Point<T>> joints{a.GetEnd()};
                if (closed && count == 2) joints.push_back(b.GetEnd());
                if (MeetElsewhere(a, b, joints, m_tolerance)) return false;
            } else if (closed && i == 0 && j == count - 1) {
                if (MeetElsewhere(b, a, {b.GetEnd()}, m_tolerance)) return false;
            } else if (DistanceBetween(a, b) <= m_tolerance) {
                return false;
            }
        }
    }
    return true;
}

template <class T>
T tq2dContourProperties<T>::GetSignedArea() const {
    if (m_items.empty()) return 0;
    // Measured from the first start, which keeps the products small; the closing chord then adds nothing.
    const Point<T> origin = GetStart(0);
    T twice = 0;
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        twice += (GetStart(i) - origin).Cross(GetEnd(i) - origin);
        if (const tq2dArc<T>* arc = m_items[i].arc) {
            T sine, cosine;
            tqSinCosDegrees(arc->GetSweep(), sine, cosine);
            const T r = arc->GetRadius();
            twice += r * r * (tqToRadians(arc->GetSweep()) - sine);
        }
    }
    return twice / 2;
}

template class tq2dContourProperties<double>;
template class tq2dContourProperties<float>;

template <class T>
bool tqIsClosedContinuousAndSimple(const tq2dContour<T>& contour) {
    if (contour.IsEmpty() || !tq2dContourProperties<T>::IsMadeOfFiniteLinesAndArcs(contour)) return false;
    const tq2dContourProperties<T> properties(contour);
    // A lone line closes only as a point.
    if (properties.GetCount() == 1 && properties.GetArc(0) == nullptr) return false;
    return properties.IsContinuous() && properties.IsClosed() && properties.IsSimple(true);
}

template bool tqIsClosedContinuousAndSimple<double>(const tq2dContour<double>& contour);
template bool tqIsClosedContinuousAndSimple<float>(const tq2dContour<float>& contour);

}  // namespace cadcam
