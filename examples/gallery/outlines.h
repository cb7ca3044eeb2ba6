// What the sheet draws of a placed part: its outline seen along +Y, in the tool's (X, Z) plane.
#pragma once

#include <vector>

#include "cadcam/geometry/tqtmesh.h"
#include "gallery/placedparts.h"

namespace gallery {

/// A point of the drawing plane: X across the tool, Z along its axis (the tip at the bottom).
struct PlanePoint {
    double x;
    double z;
};
using Polyline = std::vector<PlanePoint>;

/// The drawing of one part: closed rings are filled (even-odd, so inner rings are holes) and outlined; open
/// strokes are lines only.
struct Outline {
    Role role;
    std::vector<Polyline> rings;
    std::vector<Polyline> strokes;
};

/// The outline of a placed part. Revolved solids give their full section (profile and its mirror), extruded
/// and contour turning solids in the turning plane their contours, turning holders their prisms, a wire its
/// side view; a mesh solid, or any part that its placement turns out of the (X, Z) plane, gives the silhouette
/// edges of its mesh, which must be the part's mesh in tool coordinates.
Outline OutlineOf(const PlacedPart& placed, const cadcam::tqTMesh<double>& mesh);

/// The lower and upper corner of everything an outline draws; false when it draws nothing.
bool Extent(const Outline& outline, PlanePoint& lower, PlanePoint& upper);

}  // namespace gallery
