// tq2dDistance: endpoint distances plus the interior closest pairs that lie along a normal or a line of centres.
#include "cadcam/geometry/tq2ddistance.h"

#include <algorithm>
#include <cmath>

#include "geometry/tq2dcurve.h"
#include "misc/tqexception.h"

namespace cadcam {

namespace {

template <class T>
detail_::tq2dCurve<T> CurveOrThrow(const tq2dGeometry<T>& item) {
    const detail_::tq2dCurve<T> curve = detail_::tqCurveOf(item);
    if (!curve.IsValid()) throw misc::tqException(0, u"Distance is defined between lines and arcs only.");
    return curve;
}

template <class T>
bool Opposite(T a, T b) {
    return (a > 0 && b < 0) || (a < 0 && b > 0);
}

}  // namespace

template <class T>
T tq2dDistance<T>::PointToSegment(const tqTPoint2d<T>& point, const tqTPoint2d<T>& start,
                                  const tqTPoint2d<T>& end) {
    const tqTPoint2d<T> d = end - start;
    const T length2 = d.Dot(d);
    if (!(length2 > 0)) return point.DistanceTo(start);
    const T t = std::clamp((point - start).Dot(d) / length2, static_cast<T>(0), static_cast<T>(1));
    return point.DistanceTo(start + d * t);
}

template <class T>
T tq2dDistance<T>::PointToLine(const tqTPoint2d<T>& point, const tq2dLine<T>& line) {
    return PointToSegment(point, line.GetStart(), line.GetEnd());
}

template <class T>
T tq2dDistance<T>::PointToArc(const tqTPoint2d<T>& point, const tq2dArc<T>& arc) {
    const tqTPoint2d<T> v = point - arc.GetCentre();
    const T rho = v.Length();
    // From the centre every point of the arc is equally far.
    if (!(rho > 0)) return arc.GetRadius();
    if (arc.ContainsAngle(detail_::tqDirectionOf(v))) return std::fabs(rho - arc.GetRadius());
    return std::min(point.DistanceTo(arc.GetStart()), point.DistanceTo(arc.GetEnd()));
}

template <class T>
T tq2dDistance<T>::PointToItem(const tqTPoint2d<T>& point, const tq2dGeometry<T>& item) {
    const detail_::tq2dCurve<T> curve = CurveOrThrow(item);
    return curve.line != nullptr ? PointToLine(point, *curve.line) : PointToArc(point, *curve.arc);
}

template <class T>
T tq2dDistance<T>::Between(const tq2dLine<T>& a, const tq2dLine<T>& b) {
    const tqTPoint2d<T>&p1 = a.GetStart(), &p2 = a.GetEnd(), &q1 = b.GetStart(), &q2 = b.GetEnd();
    const T d1 = (p2 - p1).Cross(q1 - p1), d2 = (p2 - p1).Cross(q2 - p1);
    const T d3 = (q2 - q1).Cross(p1 - q1), d4 = (q2 - q1).Cross(p2 - q1);
    if (Opposite(d1, d2) && Opposite(d3, d4)) return 0;
    // Segments that do not cross come closest at an end of one of them.
    return std::min({PointToSegment(q1, p1, p2), PointToSegment(q2, p1, p2), PointToSegment(p1, q1, q2),
                     PointToSegment(p2, q1, q2)});
}

template <class T>
T tq2dDistance<T>::Between(const tq2dLine<T>& a, const tq2dArc<T>& b) {
    T best = std::min({PointToArc(a.GetStart(), b), PointToArc(a.GetEnd(), b), PointToLine(b.GetStart(), a),
                       PointToLine(b.GetEnd(), a)});
    const tqTPoint2d<T> d = a.GetEnd() - a.GetStart();
    const T length = d.Length();
    if (!(length > 0)) return best;
    const tqTPoint2d<T> u = d * (1 / length);
    const tqTPoint2d<T> n(-u.y, u.x);
    const tqTPoint2d<T> toCentre = b.GetCentre() - a.GetStart();
    const T along = toCentre.Dot(u);
    const T off = toCentre.Dot(n);
    const T r = b.GetRadius();
    // Crossings of the carrier line with the circle, kept where they lie on both items.
    if (std::fabs(off) <= r) {
        const T h = std::sqrt(std::max(static_cast<T>(0), (r - std::fabs(off)) * (r + std::fabs(off))));
        for (const T t : {along - h, along + h}) {
            if (t < 0 || t > length) continue;
            const tqTPoint2d<T> q = a.GetStart() + u * t;
            if (b.ContainsAngle(detail_::tqDirectionOf(q - b.GetCentre()))) return 0;
        }
    }
    // Interior closest pairs lie on the normal through the centre.
    if (along >= 0 && along <= length) {
        for (const T side : {static_cast<T>(-1), static_cast<T>(1)}) {
            if (b.ContainsAngle(detail_::tqDirectionOf(n * side))) best = std::min(best, std::fabs(off + side * r));
        }
    }
    return best;
}

template <class T>
T tq2dDistance<T>::Between(const tq2dArc<T>& a, const tq2dArc<T>& b) {
    T best = std::min({PointToArc(a.GetStart(), b), PointToArc(a.GetEnd(), b), PointToArc(b.GetStart(), a),
                       PointToArc(b.GetEnd(), a)});
    const tqTPoint2d<T> v = b.GetCentre() - a.GetCentre();
    const T d = v.Length();
    // Concentric arcs come closest at an end of one of them.
    if (!(d > 0)) return best;
    const tqTPoint2d<T> w = v * (1 / d);
    const T r1 = a.GetRadius(), r2 = b.GetRadius();
    if (d <= r1 + r2 && d >= std::fabs(r1 - r2)) {
        const T x = (d * d + r1 * r1 - r2 * r2) / (2 * d);
        const T h = std::sqrt(std::max(static_cast<T>(0), r1 * r1 - x * x));
        const tqTPoint2d<T> base = a.GetCentre() + w * x, n(-w.y, w.x);
        for (const T side : {static_cast<T>(-1), static_cast<T>(1)}) {
            const tqTPoint2d<T> q = base + n * (side * h);
            if (a.ContainsAngle(detail_::tqDirectionOf(q - a.GetCentre())) &&
                b.ContainsAngle(detail_::tqDirectionOf(q - b.GetCentre())))
                return 0;
        }
    }
    // Interior closest pairs lie on the line of centres.
    for (const T s1 : {static_cast<T>(-1), static_cast<T>(1)}) {
        if (!a.ContainsAngle(detail_::tqDirectionOf(w * s1))) continue;
        for (const T s2 : {static_cast<T>(-1), static_cast<T>(1)}) {
            if (!b.ContainsAngle(detail_::tqDirectionOf(w * s2))) continue;
            const tqTPoint2d<T> p1 = a.GetCentre() + w * (s1 * r1), p2 = b.GetCentre() + w * (s2 * r2);
            best = std::min(best, p1.DistanceTo(p2));
        }
    }
    return best;
}

template <class T>
T tq2dDistance<T>::Between(const tq2dGeometry<T>& a, const tq2dGeometry<T>& b) {
    const detail_::tq2dCurve<T> ca = CurveOrThrow(a), cb = CurveOrThrow(b);
    if (ca.line != nullptr) return cb.line != nullptr ? Between(*ca.line, *cb.line) : Between(*ca.line, *cb.arc);
    return cb.line != nullptr ? Between(*ca.arc, *cb.line) : Between(*ca.arc, *cb.arc);
}

template class tq2dDistance<double>;
template class tq2dDistance<float>;

}  // namespace cadcam
