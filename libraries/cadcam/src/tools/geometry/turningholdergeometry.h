// The frames of extruded solids and the prisms of turning holders and contour turning solids, shared by
// their boxes and their meshes.
#pragma once

#include <vector>

#include "cadcam/geometry/tqtpoint2d.h"
#include "cadcam/geometry/tqtpoint3d.h"

namespace cadcam {

template <class T>
class tqTurningSolidDefinition;
template <class T>
class tqTypedExtrudedSolidDefinition;

namespace toolgeometry {

using Point2 = tqTPoint2d<double>;
using Point3 = tqTPoint3d<double>;
using Polygon = std::vector<Point2>;

/// Where an extruded solid's contour point (u, v) stands: origin + u·e1 + v·e2, swept by extrusion.
struct ExtrusionFrame {
    Point3 e1, e2, normal, origin, extrusion;
    /// The point of the construction plane at (u, v).
    Point3 At(const Point2& p) const { return origin + e1 * p.x + e2 * p.y; }
};

/// The frame of a construction plane normal, its offset along the normal and an extrusion vector; a zero or
/// non-finite normal throws tqcadcamException 2171.
ExtrusionFrame FrameOf(const Point3& constructionPlane, double planeZ, const Point3& extrusion);
/// The turning plane (normal −Y, so (u, v) = (X, Z)), swept over y ∈ [−thickness, 0].
ExtrusionFrame TurningFrame(double thickness);

/// A turning holder as prisms: polygons counterclockwise in the turning plane, each swept over y ∈ [−B, 0].
struct TurningHolderPrisms {
    std::vector<Polygon> polygons;
    double thickness = 0;
};
/// The head, neck (when the type has one) and shank; a type or hand outside the known values throws
/// tqcadcamException 2030.
TurningHolderPrisms PrismsOf(const tqTurningSolidDefinition<double>& holder);

/// Whether a turning solid mirrors u → −u (hand left); a hand outside the known values throws
/// tqcadcamException with the number given (2030 for a holder, 3414 for a contour turning solid).
bool IsMirrored(const tqTypedExtrudedSolidDefinition<double>& solid, int failure);

}  // namespace toolgeometry
}  // namespace cadcam
