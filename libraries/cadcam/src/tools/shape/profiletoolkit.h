// The construction toolkit of tool profiles: fillets, tip balls and tolerances, shared by the class checks
// and the profile builders so that both compute a shape the same way.
#pragma once

#include "cadcam/geometry/tqtpoint2d.h"

namespace cadcam {
namespace shape {

using Point = tqTPoint2d<double>;

/// ε(S) = 1e-9·max(1, S), S the largest absolute coordinate of what is tested.
double Epsilon(double size);
/// Tangent of an angle in degrees, exactly 0 at 0 and ±1 at ±45.
double TanDegrees(double degrees);
/// Sine and cosine of an angle in degrees, exact on quarter turns.
double SinDegrees(double degrees);
double CosDegrees(double degrees);
/// R / tan(β), the height of a cone of half angle β (degrees) and radius R; exactly 0 when β = 90.
double ConeHeight(double radius, double halfAngle);

/// A line-line fillet Fil(V, r) between an incoming segment (unit direction u1, length la) and an outgoing one
/// (u2, lb).
struct LineLineFillet {
    bool applies = false;  ///< false when r = 0 or the segments are collinear: the corner stays
    double turn = 0;       ///< signed turn from u1 to u2 in degrees; the fillet's sweep
    double t = 0;          ///< distance from V to each tangent point, r·tan(|turn|/2)
    Point t1, t2, centre;  ///< tangent point on the incoming segment, on the outgoing one, and the centre
    bool fits = true;      ///< t <= la and t <= lb
};
LineLineFillet MakeLineLineFillet(const Point& v, const Point& u1, double la, const Point& u2, double lb, double r);
/// The largest fillet radius at a corner: min(la, lb) / tan(|turn|/2); 0 for collinear segments.
double FullCornerRadius(const Point& u1, double la, const Point& u2, double lb);
/// The unit direction from a to b.
Point Direction(const Point& a, const Point& b);

/// LowerFillet(r): a fillet between the bottom line y = 0 (travelled towards +X) and a convex circle (centre cb,
/// radius rp) that the profile follows next.
struct LowerFillet {
    bool ok = false;  ///< rp > r and the radicand q >= 0
    double q = 0;     ///< (rp − r)² − (r − cb.y)²
    Point f;          ///< the fillet's centre
    Point t0;         ///< tangent point on the bottom line
    Point tk;         ///< tangent point on the circle
};
LowerFillet MakeLowerFillet(const Point& cb, double rp, double r);

/// TipBall(rl): a ball of radius rl centred on the axis at (0, rl), internally tangent to the circle of radius
/// rp whose centre lies at x = xb <= 0.
struct TipBall {
    bool ok = false;  ///< the radicand (rp − rl)² − xb² is not negative and rp > rl
    double yb = 0;    ///< the height of the big circle's centre
    Point cl;         ///< the ball's centre (0, rl)
    Point tl;         ///< the tangent point of ball and circle; (0, 0) when rl = 0
};
TipBall MakeTipBall(double xb, double rp, double rl);

}  // namespace shape
}  // namespace cadcam
