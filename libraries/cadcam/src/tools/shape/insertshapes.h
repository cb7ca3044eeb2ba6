// Sharp outlines of turning inserts, saw blades and optic noses, the rounding that makes closed contours of
// them, and their solids in the turning plane; shared by the class checks and the cutting parts they build.
#pragma once

#include <cstddef>
#include <vector>

#include "cadcam/geometry/tq2dcontour.h"
#include "measures/tqunitsfactory.h"
#include "misc/tqautopointer.h"
#include "tools/shape/profiletoolkit.h"

namespace cadcam {

template <class T>
class tqCuttingPartDefinition;

namespace shape {

/// The vertices of a sharp outline, counterclockwise in the turning plane (u = X, v = Z).
using Polygon = std::vector<Point>;

/// A regular polygon of `sides` sides around the inscribed circle of diameter ic, centred on the origin, vertex 0
/// straight below the centre.
Polygon RegularPolygon(int sides, double ic);
/// The checks that every insert sized by its inscribed circle shares, in their order: the corner radius is
/// positive (2342), the circle is positive (2343) and the corner fits in it (2344).
void CheckInscribedCorner(double cornerRadius, double ic);
/// A regular insert: RegularPolygon with every corner rounded, the working corner's arc lowest at the origin.
tq2dContour<double> RegularInsertContour(int sides, double ic, double cornerRadius);
/// A rhombus with the inscribed circle of diameter ic and the acute angle formAngle at vertices 0 (the origin)
/// and 2, its long diagonal on the v axis.
Polygon Rhombus(double ic, double formAngle);
/// A parallelogram with the acute angle formAngle at vertex 0 (the origin), long edges of the given length
/// leaving vertex 0 at 90° − formAngle/2 and standing width apart.
Polygon Parallelogram(double formAngle, double length, double width);

/// Groove inserts by type (tqGrooveTurningTool::GroovingTurningToolType, A = 0 to E = 4): the rise h of the
/// shoulder between blade and body (0 for C and E).
double GrooveShoulderRise(int type, double b, double d, double e);
/// Type C: the height t at which the relief starts narrowing the blade from b to d.
double GrooveReliefHeight(double b, double c, double d, double e);
/// Type E: the height hv of the V tip's flanks at the blade width b.
double GrooveTipHeight(double b, double e);
/// The sharp outline of a groove insert, tip edge (or V tip) on v = 0 and centred; coincident vertices merged.
/// Vertices 0 and 1 (0 only for type E) are the ones to round.
Polygon GroovePolygon(int type, double a, double b, double c, double d, double e);

/// A chain saw blade (tqChainSawTool::ChainSawType) from its tip edge, vertices 0 and 1, upward; coincident
/// vertices after the tip merged.
Polygon ChainSawBlade(int type, double width, double length, double straightLength, double upperWidth);
/// An optic diamond's flank height hw at half the width (tqOpticDiamondTool::RadiusType).
double OpticFlankHeight(int radiusType, double includedAngle, double width);
/// An optic diamond's outline with its sharp nose, vertex 0, at the origin.
Polygon OpticDiamondOutline(int radiusType, double includedAngle, double length, double width);

/// Drops each vertex within ε of the last kept one, and a last vertex on the first; the first `keep` vertices
/// always stay.
Polygon MergeCoincident(const Polygon& polygon, std::size_t keep);
/// Fil of radius r at vertex i of a closed polygon, between its two edges.
LineLineFillet VertexFillet(const Polygon& polygon, std::size_t i, double r);

/// The closed contour of a polygon whose vertex i is rounded with radii[i] (0 leaves it sharp), starting with
/// vertex 0's corner; items shorter than ε are dropped. With placeWorkingCorner, the contour is moved so that
/// vertex 0's arc centre is (0, radii[0]): the lowest point of the working corner is the origin. Empty when the
/// sizes leave nothing to compute (not finite, or below ε).
tq2dContour<double> RoundedContour(const Polygon& polygon, const std::vector<double>& radii, bool placeWorkingCorner);
/// A circle of diameter d standing on the origin: four quarter arcs counterclockwise from (0, 0).
tq2dContour<double> CircleContour(double d);
/// A copy of a closed contour of lines and arcs with new items, reversed when it runs clockwise.
tq2dContour<double> Counterclockwise(const tq2dContour<double>& contour);

/// A cutting part holding the contours that are not empty in the turning plane (normal (0, -1, 0)) at planeZ,
/// extruded by thickness toward -Y.
misc::tqAutoPointer<tqCuttingPartDefinition<double>> TurningPlanePart(measures::tqUnitsFactory::Units units,
                                                                      const std::vector<tq2dContour<double>>& contours,
                                                                      double planeZ, double thickness);

}  // namespace shape
}  // namespace cadcam
