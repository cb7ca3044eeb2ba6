// Shapes of the barrel tools: barrel circles, their fillets and blends, and the radius at the top of the flutes,
// shared by the class checks and the profile builder. Nothing here throws: what cannot be solved comes out NaN
// or with ok = false, and the class checks turn that into their numbers.
#pragma once

#include "tools/shape/headpath.h"

namespace cadcam {
namespace shape {

/// x of the circle's point at height y on its right half (x >= centre.x); NaN when the circle misses y.
double RightX(const Point& centre, double radius, double y);
/// y of the circle's point at radius x on its upper half (y >= centre.y); NaN when the circle misses x.
double UpperY(const Point& centre, double radius, double x);

/// The bottom line to bottom.t0, the fillet to bottom.tk and the barrel (centre cb) up to its widest point:
/// S(0,0) L(t0) A+(tk; f) A+(widest; cb), the start of the barrels whose corner is a LowerFillet.
HeadPath LowerFilletPath(const LowerFillet& bottom, const Point& cb, const Point& widest);

/// tqBarrelMill: S(0,0) L(bottom.t0) A+(bottom.tk; bottom.f) A+(widest; cb) A+(top; cb).
struct BarrelMillShape {
    Point cb;            ///< the barrel's centre (R − Rp, yb), yb chosen so the barrel meets (Du/2, Lf)
    double rp = 0;       ///< the barrel's radius
    LowerFillet bottom;  ///< the corner between the bottom line and the barrel
    Point widest;        ///< (R, yb)
    Point top;           ///< (Du/2, Lf), the end of the flutes
};
BarrelMillShape MakeBarrelMillShape(double diameter, double fluteLength, double upperDiameter, double cornerRadius,
                                    double profileRadius);

/// The lower part of a barrel tangent to a tip ball on the axis: S(0,0) A+(tip.tl; tip.cl) A+(widest; cb).
struct TangentBarrel {
    Point cb;       ///< the barrel's centre (R − Rp, tip.yb)
    double rp = 0;  ///< the barrel's radius
    TipBall tip;    ///< the tip ball of the lower radius
    Point widest;   ///< (R, tip.yb)
};
TangentBarrel MakeTangentBarrel(double diameter, double profileRadius, double lowerRadius);

/// S(0,0) A+(tip.tl; tip.cl) A+(widest; cb): the tip ball and the barrel up to its widest point.
HeadPath TangentBarrelPath(const TangentBarrel& barrel);

/// tqBarrelTangentMill: the tangent barrel, then A+(upper; cb) L(top).
struct TangentMillShape {
    TangentBarrel lower;
    Point upper;  ///< (Du/2, yu): where the barrel narrows to the upper diameter
    Point top;    ///< (Du/2, Lf)
};
TangentMillShape MakeTangentMillShape(double diameter, double fluteLength, double upperDiameter, double profileRadius,
                                      double lowerRadius);

/// tqBarrelTangentMillConicalShaft: the tangent barrel, then A+(pt; cb) L(pc) L(top).
struct ConicalShaftShape {
    TangentBarrel lower;
    Point pt;   ///< where the barrel's tangent takes the cone's direction
    Point pc;   ///< the end of the neck cone, cone length above pt
    Point top;  ///< (pc.x, Lf)
};
ConicalShaftShape MakeConicalShaftShape(double diameter, double fluteLength, double taperAngle, double profileRadius,
                                        double lowerRadius, double coneLength);

/// tqBarrelDProfMill: the tangent barrel of the lower profile and blend radii, then A+(top; upperCentre).
struct DProfShape {
    TangentBarrel lower;
    Point upperCentre;  ///< (R − Ru, yk): the upper profile shares the widest point with the lower one
    Point top;          ///< (xu, Lf)
};
DProfShape MakeDProfShape(double diameter, double fluteLength, double upperProfileRadius, double blendRadius,
                          double lowerProfileRadius);

/// tqBarrelBarrSecMill: S(0,0) L(bottom.t0) A+(bottom.tk; bottom.f) A+(widest; cb) A+(tku; cb) A-(tlu; fu) L(top).
struct BarrSecShape {
    Point cb;  ///< (R − Rp, CenterHeight)
    double rp = 0;
    LowerFillet bottom;        ///< the lower blend
    Point widest;              ///< (R, CenterHeight)
    double upperRadicand = 0;  ///< (Rp + rub)² − (Dsh/2 + rub − xb)²: negative when the blend misses the barrel
    Point fu;                  ///< the upper blend's centre
    Point tku;                 ///< the upper blend's tangent point on the barrel
    Point tlu;                 ///< its tangent point on the shaft line
    Point top;                 ///< (Dsh/2, Lf)
};
BarrSecShape MakeBarrSecShape(double diameter, double fluteLength, double shaftDiameter, double upperBlendRadius,
                              double profileRadius, double lowerBlendRadius, double centerHeight);

/// tqBarrelTaperMill: S(0,0) L(bottom.t0) A+(bottom.tk; bottom.f) A+(widest; cb) A+(tku; cb) A-(tlu; fu) L(top).
struct TaperShape {
    Point cb;  ///< (R − Rp, yb), the barrel passing through (Dfl/2, 0)
    double rp = 0;
    LowerFillet bottom;  ///< the lower radius
    Point widest;        ///< (R, yb)
    Point pj;            ///< (Du/2, yj): where the neck cone leaves the barrel's upper half
    double disc = 0;     ///< radicand of the upper blend: negative when it misses the barrel
    Point fu;            ///< the upper blend's centre
    Point tku;           ///< its tangent point on the barrel
    Point tlu;           ///< its tangent point on the cone
    Point top;           ///< (rtop, Lf), the cone's end
};
TaperShape MakeTaperShape(double diameter, double fluteLength, double upperDiameter, double taperAngle,
                          double lowerRadius, double profileRadius, double upperRadius, double flatnessDiameter);

/// tqBarrelAdvancedMill: the barrel that its three definitions give, its centre on the far side of the axis.
struct AdvancedBarrel {
    double dr = 0;           ///< radial distance of the centre beyond the axis
    double rmax = 0;         ///< the maximum radius, Rp − dr
    double ya = 0;           ///< the centre's height
    double rref = 0;         ///< the radius where the barrel meets the bottom line y = 0
    double ru = 0;           ///< the radius at the top of the flutes
    double fluteLength = 0;  ///< the flute length
    Point cb;                ///< (−dr, ya)
    double rp = 0;           ///< the barrel's radius
};
AdvancedBarrel MakeAdvancedBarrel(double profileRadius, bool flutesByLength, double flutesValue, bool axialByDistance,
                                  double axialValue, bool radialByDistance, double radialValue);

/// The corner of tqBarrelAdvancedMill: S(0,0) L(bottom.t0) A+(bottom.tk; bottom.f) A+((rmax, ya); cb) A+((ru, Lf); cb).
struct AdvancedCorner {
    bool hasAxisRadius = false;  ///< whether a fillet centred on the axis exists (dr >= 0 and Rp > ya)
    double axisRadius = 0;       ///< the radius of that fillet, which leaves no flat
    double fullRadius = 0;       ///< min(axisRadius, ya), or ya without an axis radius
    double radius = 0;           ///< the effective corner radius for the corner radius type
    LowerFillet bottom;          ///< the fillet, with the full radius's points assigned exactly
};
/// cornerRadiusType: 0 none, 1 the given radius, 2 the full radius.
AdvancedCorner MakeAdvancedCorner(const AdvancedBarrel& barrel, int cornerRadiusType, double cornerRadius);

}  // namespace shape
}  // namespace cadcam
