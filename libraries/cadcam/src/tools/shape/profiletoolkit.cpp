// The construction toolkit of tool profiles.
#include "tools/shape/profiletoolkit.h"

#include <algorithm>
#include <cmath>

#include "cadcam/geometry/tqangle.h"

namespace cadcam {
namespace shape {

double Epsilon(double size) { return 1e-9 * std::max(1.0, size); }

double TanDegrees(double degrees) {
    if (degrees == 0) return 0;
    // A right-angled corner gets tangent lengths equal to its radius, and its arc exactly a quarter turn.
    if (degrees == 45 || degrees == -45) return degrees > 0 ? 1 : -1;
    return std::tan(tqToRadians(degrees));
}

double SinDegrees(double degrees) {
    double s = 0, c = 0;
    tqSinCosDegrees(degrees, s, c);
    return s;
}

double CosDegrees(double degrees) {
    double s = 0, c = 0;
    tqSinCosDegrees(degrees, s, c);
    return c;
}

double ConeHeight(double radius, double halfAngle) {
    if (halfAngle == 90) return 0;
    return radius / TanDegrees(halfAngle);
}

Point Direction(const Point& a, const Point& b) {
    const Point d = b - a;
    const double length = d.Length();
    // Divided, not multiplied by the reciprocal, which overflows for a subnormal length.
    return length > 0 ? Point(d.x / length, d.y / length) : Point();
}

LineLineFillet MakeLineLineFillet(const Point& v, const Point& u1, double la, const Point& u2, double lb, double r) {
    LineLineFillet f;
    f.turn = tqToDegrees(std::atan2(u1.Cross(u2), u1.Dot(u2)));
    f.t1 = f.t2 = v;
    if (r == 0 || f.turn == 0) return f;
    f.applies = true;
    f.t = r * TanDegrees(std::fabs(f.turn) / 2);
    f.t1 = v - u1 * f.t;
    f.t2 = v + u2 * f.t;
    const Point normal = f.turn > 0 ? Point(-u1.y, u1.x) : Point(u1.y, -u1.x);
    f.centre = f.t1 + normal * r;
    f.fits = f.t <= la && f.t <= lb;
    return f;
}

double FullCornerRadius(const Point& u1, double la, const Point& u2, double lb) {
    const double turn = tqToDegrees(std::atan2(u1.Cross(u2), u1.Dot(u2)));
    if (turn == 0) return 0;
    return std::min(la, lb) / TanDegrees(std::fabs(turn) / 2);
}

LowerFillet MakeLowerFillet(const Point& cb, double rp, double r) {
    LowerFillet f;
    f.q = (rp - r) * (rp - r) - (r - cb.y) * (r - cb.y);
    f.ok = rp > r && f.q >= 0;
    if (!f.ok) return f;
    if (r == 0) {
        const double x = cb.x + std::sqrt(rp * rp - cb.y * cb.y);
        f.f = f.t0 = f.tk = Point(x, 0);
        return f;
    }
    f.f = Point(cb.x + std::sqrt(f.q), r);
    f.t0 = Point(f.f.x, 0);
    f.tk = cb + (f.f - cb) * (rp / (rp - r));
    return f;
}

TipBall MakeTipBall(double xb, double rp, double rl) {
    TipBall b;
    const double radicand = (rp - rl) * (rp - rl) - xb * xb;
    b.ok = rp > rl && radicand >= 0;
    b.cl = Point(0, rl);
    if (!b.ok) return b;
    b.yb = rl + std::sqrt(radicand);
    if (rl == 0) {
        b.tl = Point(0, 0);
        return b;
    }
    const Point cb(xb, b.yb);
    b.tl = cb + (b.cl - cb) * (rp / (rp - rl));
    return b;
}

}  // namespace shape
}  // namespace cadcam
