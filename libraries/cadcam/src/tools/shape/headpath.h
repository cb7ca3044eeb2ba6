// The head of a typed revolved tool as a light path of lines and arcs: corner fillets on a polyline, the
// convex tip head, and the radius where the path is clipped at the flute length.
#pragma once

#include <cstddef>
#include <vector>

#include "tools/shape/profiletoolkit.h"

namespace cadcam {
namespace shape {

/// One item of a head path: a line, or an arc about `centre` (counterclockwise when ccw), ending at `end`.
struct PathItem {
    Point end;
    bool arc = false;
    Point centre;
    bool ccw = true;
};

/// A chain of items from `start`, as a head is drawn before it is clipped.
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

/// The polyline through points with vertex `corner` (neither the first nor the last) rounded by `fillet`.
HeadPath RoundedPolyline(const std::vector<Point>& points, std::size_t corner, const CornerFillet& fillet);

/// The corners of the face mill head S(0,0) L(R,0) L(OD/2,h) L(OD/2,Lf) before its fillet at (R,0). A lead face
/// that Drop would remove (shorter than ε) is left out, the side then leaving (R,0) towards (OD/2,Lf).
std::vector<Point> FaceHeadPoints(double radius, double outsideRadius, double leadHeight, double fluteLength);

/// The lollipop head: the ball of the tool radius from the tip to its equator, then on up to where it meets
/// the neck of radius neckRadius (0 < neckRadius < radius).
HeadPath LollipopHead(double radius, double neckRadius);

/// The convex tip head: a flat of radius flatRadius, the tip arc of radius tipRadius centred at
/// (flatRadius, tipRadius), and a fillet of radius cornerRadius ending vertical at (radius, yf). Needs
/// tipRadius > cornerRadius and (tipRadius − cornerRadius) >= (radius − cornerRadius − flatRadius) >= 0.
HeadPath ConvexTipHead(double radius, double tipRadius, double flatRadius, double cornerRadius);

/// Extend and clip at h for a path whose y never decreases: the x at which the path first reaches h, or the
/// last point's x when it ends below h (the path goes on vertically).
double ClipRadiusAt(const HeadPath& path, double h);

}  // namespace shape
}  // namespace cadcam
