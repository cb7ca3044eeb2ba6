// tq2dIntersection: exact solutions per pair of kinds, checked against both items' extents with the tolerance.
#include "cadcam/geometry/tq2dintersection.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "cadcam/geometry/tq2ddistance.h"
#include "geometry/tq2dcurve.h"
#include "misc/tqexception.h"

namespace cadcam {

namespace {

template <class T>
using Point = tqTPoint2d<T>;

template <class T>
class Solver {
public:
    Solver(T tolerance, std::vector<Point<T>>& points, std::vector<typename tq2dIntersection<T>::Stretch>& overlaps)
        : m_tol(tolerance), m_points(points), m_overlaps(overlaps) {}

    void Solve(const detail_::tq2dCurve<T>& a, const detail_::tq2dCurve<T>& b) {
        if (a.line != nullptr && b.line != nullptr) {
            if (Collinear(*a.line, *b.line)) return Overlap(*a.line, *b.line);
            Crossing(*a.line, *b.line);
        } else if (a.line != nullptr) {
            Crossing(*a.line, *b.arc);
        } else if (b.line != nullptr) {
            Crossing(*b.line, *a.arc);
        } else {
            if (a.arc->GetCentre().DistanceTo(b.arc->GetCentre()) <= m_tol &&
                std::fabs(a.arc->GetRadius() - b.arc->GetRadius()) <= m_tol)
                return Overlap(*a.arc, *b.arc);
            Crossing(*a.arc, *b.arc);
        }
        // An end of one item that comes within the tolerance of the other touches it.
        for (const Point<T>& p : {a.GetStart(), a.GetEnd()})
            if (Distance(p, b) <= m_tol) AddPoint(p);
        for (const Point<T>& p : {b.GetStart(), b.GetEnd()})
            if (Distance(p, a) <= m_tol) AddPoint(p);
    }

private:
    static T Distance(const Point<T>& p, const detail_::tq2dCurve<T>& c) {
        return c.line != nullptr ? tq2dDistance<T>::PointToLine(p, *c.line) : tq2dDistance<T>::PointToArc(p, *c.arc);
    }

    static T Distance(const Point<T>& p, const tq2dLine<T>& line) { return tq2dDistance<T>::PointToLine(p, line); }
    static T Distance(const Point<T>& p, const tq2dArc<T>& arc) { return tq2dDistance<T>::PointToArc(p, arc); }

    void AddPoint(const Point<T>& p) {
        for (const Point<T>& q : m_points)
            if (q.DistanceTo(p) <= 2 * m_tol) return;
        m_points.push_back(p);
    }

    template <class A, class B>
    void AddIfOnBoth(const Point<T>& p, const A& a, const B& b) {
        if (Distance(p, a) <= m_tol && Distance(p, b) <= m_tol) AddPoint(p);
    }

    /// The distance of p from the carrier of a line of positive length.
    static T Off(const Point<T>& p, const tq2dLine<T>& line) {
        const Point<T> d = line.GetEnd() - line.GetStart();
        return std::fabs(d.Cross(p - line.GetStart())) / d.Length();
    }

    /// Whether one line lies along the carrier of the other (the longer one), both ends within the tolerance.
    bool Collinear(const tq2dLine<T>& a, const tq2dLine<T>& b) const {
        const bool aLonger = a.Length() >= b.Length();
        const tq2dLine<T>& longer = aLonger ? a : b;
        const tq2dLine<T>& shorter = aLonger ? b : a;
        if (!(longer.Length() > 0)) return false;
        return Off(shorter.GetStart(), longer) <= m_tol && Off(shorter.GetEnd(), longer) <= m_tol;
    }

    void Overlap(const tq2dLine<T>& a, const tq2dLine<T>& b) {
        const bool aLonger = a.Length() >= b.Length();
        const tq2dLine<T>& longer = aLonger ? a : b;
        const tq2dLine<T>& shorter = aLonger ? b : a;
        const T length = longer.Length();
        const Point<T> u = (longer.GetEnd() - longer.GetStart()) * (1 / length);
        const T t0 = (shorter.GetStart() - longer.GetStart()).Dot(u);
        const T t1 = (shorter.GetEnd() - longer.GetStart()).Dot(u);
        const T lo = std::max(static_cast<T>(0), std::min(t0, t1));
        const T hi = std::min(length, std::max(t0, t1));
        if (hi - lo < -m_tol) return;
        if (hi - lo <= m_tol) return AddPoint(longer.GetStart() + u * ((lo + hi) / 2));
        Point<T> from = longer.GetStart() + u * lo, to = longer.GetStart() + u * hi;
        // Reported in the direction of the first item.
        if ((a.GetEnd() - a.GetStart()).Dot(u) < 0) std::swap(from, to);
        m_overlaps.push_back({from, to});
    }

    void Crossing(const tq2dLine<T>& a, const tq2dLine<T>& b) {
        const Point<T> r = a.GetEnd() - a.GetStart(), s = b.GetEnd() - b.GetStart();
        const T denominator = r.Cross(s);
        if (denominator == 0) return;
        const T t = (b.GetStart() - a.GetStart()).Cross(s) / denominator;
        AddIfOnBoth(a.GetStart() + r * t, a, b);
    }

    void Crossing(const tq2dLine<T>& line, const tq2dArc<T>& arc) {
        const Point<T> d = line.GetEnd() - line.GetStart();
        const T length = d.Length();
        if (!(length > 0)) return;
        const Point<T> u = d * (1 / length), n(-u.y, u.x);
        const Point<T> toCentre = arc.GetCentre() - line.GetStart();
        const T off = std::fabs(toCentre.Dot(n));
        const T r = arc.GetRadius();
        const Point<T> foot = line.GetStart() + u * toCentre.Dot(u);
        if (off > r + m_tol) return;
        // Near a tangency the two roots are ill-conditioned; the contact is the foot of the centre.
        if (r - off <= m_tol) return AddIfOnBoth(foot, line, arc);
        const T h = std::sqrt((r - off) * (r + off));
        AddIfOnBoth(foot - u * h, line, arc);
        AddIfOnBoth(foot + u * h, line, arc);
    }

    void Crossing(const tq2dArc<T>& a, const tq2dArc<T>& b) {
        const Point<T> v = b.GetCentre() - a.GetCentre();
        const T d = v.Length();
        if (!(d > m_tol)) return;  // concentric circles of different radii
        const T r1 = a.GetRadius(), r2 = b.GetRadius();
        if (d > r1 + r2 + m_tol || d < std::fabs(r1 - r2) - m_tol) return;
        const Point<T> w = v * (1 / d), n(-w.y, w.x);
        const T x = (d * d + r1 * r1 - r2 * r2) / (2 * d);
        const Point<T> base = a.GetCentre() + w * x;
        if (std::fabs(d - (r1 + r2)) <= m_tol || std::fabs(d - std::fabs(r1 - r2)) <= m_tol)
            return AddIfOnBoth(base, a, b);
        const T h = std::sqrt(std::max(static_cast<T>(0), (r1 - x) * (r1 + x)));
        AddIfOnBoth(base - n * h, a, b);
        AddIfOnBoth(base + n * h, a, b);
    }

    /// Arcs of one circle: the common part of their angle ranges, taken counterclockwise.
    void Overlap(const tq2dArc<T>& a, const tq2dArc<T>& b) {
        const auto range = [](const tq2dArc<T>& arc, T& low, T& high) {
            low = std::min(arc.GetStartAngle(), arc.GetEndAngle());
            high = std::max(arc.GetStartAngle(), arc.GetEndAngle());
        };
        T a0, a1, b0, b1;
        range(a, a0, a1);
        range(b, b0, b1);
        const T slack = tqToDegrees(m_tol / a.GetRadius());
        for (int turn = -2; turn <= 2; ++turn) {
            const T shift = static_cast<T>(360 * turn);
            const T lo = std::max(a0, b0 + shift), hi = std::min(a1, b1 + shift);
            if (hi - lo < -slack) continue;
            if (hi - lo <= slack) {
                AddPoint(a.PointAtAngle((lo + hi) / 2));
                continue;
            }
            Point<T> from = a.PointAtAngle(lo), to = a.PointAtAngle(hi);
            if (!a.IsCounterclockwise()) std::swap(from, to);
            m_overlaps.push_back({from, to});
        }
    }

    T m_tol;
    std::vector<Point<T>>& m_points;
    std::vector<typename tq2dIntersection<T>::Stretch>& m_overlaps;
};

}  // namespace

template <class T>
tq2dIntersection<T>::tq2dIntersection(const tq2dGeometry<T>& a, const tq2dGeometry<T>& b, T tolerance) {
    if (!(tolerance >= 0) || !std::isfinite(tolerance))
        throw misc::tqRangeException<T>(u"Intersection tolerance must be finite and not negative", tolerance, 0,
                                        std::numeric_limits<T>::max());
    const detail_::tq2dCurve<T> ca = detail_::tqCurveOf(a), cb = detail_::tqCurveOf(b);
    if (!ca.IsValid() || !cb.IsValid())
        throw misc::tqException(0, u"Intersection is defined between lines and arcs only.");
    Solver<T>(tolerance, m_points, m_overlaps).Solve(ca, cb);
}

template <class T>
bool tq2dIntersection<T>::LiesWithin(const tqTPoint2d<T>& point, T distance) const {
    for (const tqTPoint2d<T>& p : m_points)
        if (!(p.DistanceTo(point) <= distance)) return false;
    for (const Stretch& s : m_overlaps)
        if (!(s.from.DistanceTo(point) <= distance) || !(s.to.DistanceTo(point) <= distance)) return false;
    return true;
}

template class tq2dIntersection<double>;
template class tq2dIntersection<float>;

}  // namespace cadcam
