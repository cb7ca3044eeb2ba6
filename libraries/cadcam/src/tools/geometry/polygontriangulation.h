// Ear clipping of a polygon with holes, for the caps of extruded solids.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "cadcam/geometry/tqtpoint2d.h"

namespace cadcam {
namespace toolgeometry {

using Index = std::uint32_t;
using IndexLoop = std::vector<Index>;

/// Triangulates the region inside outer (counterclockwise) and outside each hole (clockwise, inside outer).
/// Loops are indices into points. Appends counterclockwise triangles that use every loop edge exactly once,
/// so that the cap joins the side faces edge to edge; holes are bridged to the outer loop first.
void TriangulatePolygon(const std::vector<tqTPoint2d<double>>& points, const IndexLoop& outer,
                        const std::vector<IndexLoop>& holes, std::vector<std::array<Index, 3>>& triangles);

}  // namespace toolgeometry
}  // namespace cadcam
