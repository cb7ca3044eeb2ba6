// Shapes of the barrel tools.
#include "tools/shape/barrelshapes.h"

#include <algorithm>
#include <cmath>

namespace cadcam {
namespace shape {

double RightX(const Point& centre, double radius, double y) {
    const double dy = y - centre.y;
    return centre.x + std::sqrt(radius * radius - dy * dy);
}

double UpperY(const Point& centre, double radius, double x) {
    const double dx = x - centre.x;
    return centre.y + std::sqrt(radius * radius - dx * dx);
}

HeadPath LowerFilletPath(const LowerFillet& bottom, const Point& cb, const Point& widest) {
    HeadPath path;
    path.LineTo(bottom.t0);
    path.ArcTo(bottom.tk, bottom.f, true);
    path.ArcTo(widest, cb, true);
    return path;
}

BarrelMillShape MakeBarrelMillShape(double diameter, double fluteLength, double upperDiameter, double cornerRadius,
                                    double profileRadius) {
    BarrelMillShape s;
    const double radius = diameter / 2;
    const double xb = radius - profileRadius;
    const double ru = upperDiameter / 2;
    // The barrel's lower half passes through the top of the flutes, so its centre lies below Lf.
    const double dx = ru - xb;
    s.cb = Point(xb, fluteLength - std::sqrt(profileRadius * profileRadius - dx * dx));
    s.rp = profileRadius;
    s.bottom = MakeLowerFillet(s.cb, profileRadius, cornerRadius);
    s.widest = Point(radius, s.cb.y);
    s.top = Point(ru, fluteLength);
    return s;
}

TangentBarrel MakeTangentBarrel(double diameter, double profileRadius, double lowerRadius) {
    TangentBarrel b;
    const double radius = diameter / 2;
    const double xb = radius - profileRadius;
    b.rp = profileRadius;
    b.tip = MakeTipBall(xb, profileRadius, lowerRadius);
    // An unsolvable tip leaves the barrel's height undefined, so every later comparison with it fails.
    const double yb = b.tip.ok ? b.tip.yb : std::nan("");
    b.cb = Point(xb, yb);
    b.widest = Point(radius, yb);
    return b;
}

HeadPath TangentBarrelPath(const TangentBarrel& barrel) {
    HeadPath path;
    path.ArcTo(barrel.tip.tl, barrel.tip.cl, true);
    path.ArcTo(barrel.widest, barrel.cb, true);
    return path;
}

TangentMillShape MakeTangentMillShape(double diameter, double fluteLength, double upperDiameter, double profileRadius,
                                      double lowerRadius) {
    TangentMillShape s;
    s.lower = MakeTangentBarrel(diameter, profileRadius, lowerRadius);
    const double ru = upperDiameter / 2;
    s.upper = Point(ru, UpperY(s.lower.cb, profileRadius, ru));
    s.top = Point(ru, fluteLength);
    return s;
}

ConicalShaftShape MakeConicalShaftShape(double diameter, double fluteLength, double taperAngle, double profileRadius,
                                        double lowerRadius, double coneLength) {
    ConicalShaftShape s;
    s.lower = MakeTangentBarrel(diameter, profileRadius, lowerRadius);
    // At the angle α above the widest point the barrel's tangent is the cone direction (−sin α, cos α).
    s.pt = s.lower.cb + Point(CosDegrees(taperAngle), SinDegrees(taperAngle)) * profileRadius;
    s.pc = s.pt + Point(-TanDegrees(taperAngle), 1) * coneLength;
    s.top = Point(s.pc.x, fluteLength);
    return s;
}

DProfShape MakeDProfShape(double diameter, double fluteLength, double upperProfileRadius, double blendRadius,
                          double lowerProfileRadius) {
    DProfShape s;
    s.lower = MakeTangentBarrel(diameter, lowerProfileRadius, blendRadius);
    s.upperCentre = Point(diameter / 2 - upperProfileRadius, s.lower.cb.y);
    s.top = Point(RightX(s.upperCentre, upperProfileRadius, fluteLength), fluteLength);
    return s;
}

BarrSecShape MakeBarrSecShape(double diameter, double fluteLength, double shaftDiameter, double upperBlendRadius,
                              double profileRadius, double lowerBlendRadius, double centerHeight) {
    BarrSecShape s;
    const double radius = diameter / 2;
    const double xb = radius - profileRadius;
    const double shaft = shaftDiameter / 2;
    s.cb = Point(xb, centerHeight);
    s.rp = profileRadius;
    s.bottom = MakeLowerFillet(s.cb, profileRadius, lowerBlendRadius);
    s.widest = Point(radius, centerHeight);
    // The upper blend touches the barrel from outside and the shaft line x = Dsh/2 from the right.
    const double outer = profileRadius + upperBlendRadius;
    const double dx = shaft + upperBlendRadius - xb;
    s.upperRadicand = outer * outer - dx * dx;
    const double yF = centerHeight + std::sqrt(s.upperRadicand);
    s.fu = Point(shaft + upperBlendRadius, yF);
    s.tku = s.cb + (s.fu - s.cb) * (profileRadius / outer);
    s.tlu = Point(shaft, yF);
    s.top = Point(shaft, fluteLength);
    return s;
}

TaperShape MakeTaperShape(double diameter, double fluteLength, double upperDiameter, double taperAngle,
                          double lowerRadius, double profileRadius, double upperRadius, double flatnessDiameter) {
    TaperShape s;
    const double radius = diameter / 2;
    const double xb = radius - profileRadius;
    const double rf = flatnessDiameter / 2;
    const double dx = rf - xb;
    s.cb = Point(xb, std::sqrt(profileRadius * profileRadius - dx * dx));
    s.rp = profileRadius;
    s.bottom = MakeLowerFillet(s.cb, profileRadius, lowerRadius);
    s.widest = Point(radius, s.cb.y);
    const double neck = upperDiameter / 2;
    s.pj = Point(neck, UpperY(s.cb, profileRadius, neck));
    // The blend's centre lies on the cone line offset by ru to its right, at Rp + ru from the barrel's centre.
    const double sine = SinDegrees(taperAngle);
    const double cosine = CosDegrees(taperAngle);
    const Point u(sine, cosine);
    const Point right(cosine, -sine);
    const Point offset = s.pj + right * upperRadius;
    const Point w = offset - s.cb;
    const double wu = w.Dot(u);
    const double outer = profileRadius + upperRadius;
    s.disc = wu * wu - w.Dot(w) + outer * outer;
    const double along = -wu + std::sqrt(s.disc);
    s.fu = offset + u * along;
    s.tlu = s.pj + u * along;
    s.tku = s.cb + (s.fu - s.cb) * (profileRadius / outer);
    s.top = Point(neck + (fluteLength - s.pj.y) * TanDegrees(taperAngle), fluteLength);
    return s;
}

AdvancedBarrel MakeAdvancedBarrel(double profileRadius, bool flutesByLength, double flutesValue, bool axialByDistance,
                                  double axialValue, bool radialByDistance, double radialValue) {
    AdvancedBarrel b;
    const double rp = profileRadius;
    b.rp = rp;
    b.dr = radialByDistance ? radialValue : rp - radialValue / 2;
    b.rmax = rp - b.dr;
    const double xc = -b.dr;
    if (axialByDistance) {
        b.ya = axialValue;
        b.rref = RightX(Point(xc, b.ya), rp, 0);
    } else {
        b.rref = axialValue / 2;
        b.ya = UpperY(Point(xc, 0), rp, b.rref);
    }
    b.cb = Point(xc, b.ya);
    if (flutesByLength) {
        b.fluteLength = flutesValue;
        b.ru = RightX(b.cb, rp, b.fluteLength);
    } else {
        b.ru = flutesValue / 2;
        b.fluteLength = UpperY(b.cb, rp, b.ru);
    }
    return b;
}

AdvancedCorner MakeAdvancedCorner(const AdvancedBarrel& barrel, int cornerRadiusType, double cornerRadius) {
    AdvancedCorner c;
    const double rp = barrel.rp;
    const double ya = barrel.ya;
    const double dr = barrel.dr;
    c.hasAxisRadius = dr >= 0 && rp > ya;
    if (c.hasAxisRadius) {
        // The fillet centred on the axis and internally tangent to the barrel: dr² + (r − ya)² = (Rp − r)².
        c.axisRadius = (rp * rp - ya * ya - dr * dr) / (2 * (rp - ya));
        // A fillet higher than the centre would pass the widest point.
        c.fullRadius = std::min(c.axisRadius, ya);
    } else {
        c.fullRadius = ya;
    }
    c.radius = cornerRadiusType == 1 ? cornerRadius : cornerRadiusType == 2 ? c.fullRadius : 0;
    c.bottom = MakeLowerFillet(barrel.cb, rp, c.radius);
    if (cornerRadiusType != 2) return c;
    const double r = c.radius;
    if (c.hasAxisRadius && r == c.axisRadius) {
        // Assigned, not solved: the radicand is dr² up to rounding and must not fail for dr = 0.
        c.bottom.ok = rp > r;
        c.bottom.f = Point(0, r);
        c.bottom.t0 = Point(0, 0);
        c.bottom.tk = barrel.cb + (c.bottom.f - barrel.cb) * (rp / (rp - r));
    }
    if (r == ya && c.bottom.ok) c.bottom.tk = Point(barrel.rmax, ya);
    return c;
}

}  // namespace shape
}  // namespace cadcam
