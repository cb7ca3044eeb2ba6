// Shape computations of the drilling heads: where a head arc is cut at the flute length, and the rounded corner
// between a lead cone and the cylindrical side.
#pragma once

#include "tools/shape/profiletoolkit.h"

namespace cadcam {
namespace shape {

/// x of the point at height h on a head arc (centre, radius) lying on the side `side` (+1 or −1) of its centre;
/// the cut of extend-and-clip.
double ArcCutX(const Point& centre, double radius, double h, double side);

/// The corner (radius, h) where a cone coming from coneStart meets the side line that rises to the flute length.
struct SideCorner {
    double la = 0;   ///< length of the cone segment
    double t = 0;    ///< distance from the corner to each tangent point of its fillet; 0 without fillet
    double top = 0;  ///< height where the fillet meets the side, h + t
};
/// Rounds the corner with cornerRadius, or with the largest radius that fits when full is set (its tangent
/// point is then assigned the end of the segment it consumes).
SideCorner MakeSideCorner(const Point& coneStart, double radius, double h, double fluteLength, double cornerRadius,
                          bool full);

}  // namespace shape
}  // namespace cadcam
