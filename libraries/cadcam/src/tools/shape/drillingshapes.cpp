// Shape computations of the drilling heads.
#include "tools/shape/drillingshapes.h"

#include <algorithm>
#include <cmath>

namespace cadcam {
namespace shape {

double ArcCutX(const Point& centre, double radius, double h, double side) {
    const double dy = h - centre.y;
    return centre.x + side * std::sqrt(std::max(0.0, radius * radius - dy * dy));
}

SideCorner MakeSideCorner(const Point& coneStart, double radius, double h, double fluteLength, double cornerRadius,
                          bool full) {
    const Point corner(radius, h);
    const Point up(0, 1);
    const double lb = fluteLength - h;
    SideCorner c;
    c.la = coneStart.DistanceTo(corner);
    const Point u1 = Direction(coneStart, corner);
    // A side that does not rise leaves nothing to round; the caller refuses such a head.
    const double r = full ? (lb > 0 ? FullCornerRadius(u1, c.la, up, lb) : 0) : cornerRadius;
    const LineLineFillet fillet = MakeLineLineFillet(corner, u1, c.la, up, lb, r);
    c.t = fillet.t;
    c.top = h + fillet.t;
    if (full && fillet.applies) {
        // The full fillet consumes the shorter segment exactly.
        c.t = std::min(c.la, lb);
        c.top = std::min(fluteLength, h + c.t);
    }
    return c;
}

}  // namespace shape
}  // namespace cadcam
