// Profiles as light paths of lines and arcs: the heads of typed revolved tools with their corner fillets,
// extend-and-clip at a height, Drop, and the conversion to and from a contour.
#pragma once

#include <cstddef>
#include <vector>

#include "cadcam/geometry/tq2dcontour.h"
#include "tools/shape/profiletoolkit.h"

namespace cadcam {
namespace shape {

/// One item of a path: a line, or an arc about `centre` (counterclockwise when ccw), ending at `end`.
struct PathItem {
    Point end;
    bool arc = false;
    Point centre;
    bool ccw = true;
};

/// A chain of items from `start`. Unlike a contour it may hold degenerate items, which Drop removes.
struct HeadPath {
    Point start;
    std::vector<PathItem> items;

    /// Starts the path at p.
    explicit HeadPath(const Point& p = Point()) : start(p) {}
    /// Appends a line to p.
    void LineTo(const Point& p);
    /// Appends an arc to p about c.
    void ArcTo(const Point& p, const Point& c, bool ccw);
    /// The point the path ends at.
    const Point& Last() const { return items.empty() ? start : items.back().end; }
};

/// Fil(V, r) at the corner V between the segments A→V and V→B, with the effective radius of a corner radius
/// type (0 none, 1 the given radius, 2 the full radius).
struct CornerFillet {
    double la = 0;          ///< length of A→V
    double lb = 0;          ///< length of V→B
    double fullRadius = 0;  ///< r_full: the largest radius whose tangent points stay on both segments
    double radius = 0;      ///< rc*: the radius the corner gets
    LineLineFillet fillet;  ///< with the full radius, t = min(la, lb) and the consumed end assigned exactly
};
/// The fillet at V; `type` must be 0, 1 or 2.
CornerFillet MakeCornerFillet(const Point& a, const Point& v, const Point& b, int type, double cornerRadius);

/// A polyline head with one vertex rounded: the shape of most non-barrel heads.
struct RoundedCorner {
    std::vector<Point> points;  ///< the sharp head, from the tip
    std::size_t corner = 1;     ///< the rounded vertex, neither the first nor the last
    CornerFillet fillet;        ///< the fillet at that vertex

    /// The polyline with the vertex replaced by the fillet's line end and arc.
    HeadPath Path() const;
};
/// Rounds points[corner] with MakeCornerFillet.
RoundedCorner MakeRoundedCorner(std::vector<Point> points, std::size_t corner, int type, double cornerRadius);

/// The flat end and cylindrical side S(0,0) L(R,0) L(R,h).
HeadPath CylinderHead(double radius, double height);

/// The corners of the face mill head S(0,0) L(R,0) L(OD/2,h) L(OD/2,Lf) before its fillet at (R,0). A lead face
/// that Drop would remove (shorter than ε) is left out, the side then leaving (R,0) towards (OD/2,Lf).
std::vector<Point> FaceHeadPoints(double radius, double outsideRadius, double leadHeight, double fluteLength);

/// The face and chamfer mill head: the bottom at the tool radius, the lead face at taperAngle from the axis out to
/// the outside radius and the side, the corner at (R, 0) rounded with the segment that leaves it.
RoundedCorner FaceHead(double diameter, double fluteLength, double cornerRadius, int cornerRadiusType,
                       double outsideDiameter, double taperAngle);

/// The dovetail and bore bar head: the bottom and the side narrowing upward by taperAngle, the bottom corner
/// rounded.
RoundedCorner UndercutHead(double diameter, double fluteLength, double cornerRadius, int cornerRadiusType,
                           double taperAngle);

/// The lollipop head: the ball of the tool radius from the tip to its equator, then on up to where it meets
/// the neck of radius neckRadius (0 < neckRadius < radius).
HeadPath LollipopHead(double radius, double neckRadius);

/// The convex tip head: a flat of radius flatRadius, the tip arc of radius tipRadius centred at
/// (flatRadius, tipRadius), and a fillet of radius cornerRadius ending vertical at (radius, yf). Needs
/// tipRadius > cornerRadius and (tipRadius − cornerRadius) >= (radius − cornerRadius − flatRadius) >= 0.
HeadPath ConvexTipHead(double radius, double tipRadius, double flatRadius, double cornerRadius);

/// Extend and clip at h, for a path whose y never decreases: a vertical line up to h when the path ends below
/// it, else the path up to its first item that reaches h, cut there at y = h exactly.
HeadPath ExtendAndClip(const HeadPath& path, double h);

/// Drop: removes lines shorter than ε, arcs of radius at most ε (radius 0 included) and arcs sweeping at most
/// 1e-12 rad, ε taken over the path. The next item then starts where the removed one started; a removed last item
/// leaves its end to the item before, so the first and the last point stay exactly where they were.
void Drop(HeadPath& path);

/// The path as a contour of tq2dLine and tq2dArc items; a path without items gives an empty contour.
tq2dContour<double> ToContour(const HeadPath& path);

/// The lines and arcs of a contour moved by dy along Y, as a path; items of other kinds are skipped. An empty
/// contour gives a path without items at the origin.
HeadPath PathOf(const tq2dContour<double>& contour, double dy);

}  // namespace shape
}  // namespace cadcam
