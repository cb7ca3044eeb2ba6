// Checks that a triangle mesh bounds a solid: closed, consistently oriented outwards, vertices shared.
#pragma once

#include <string>

#include "cadcam/geometry/tqtmesh.h"

namespace tqtest {

/// The volume enclosed by the triangles, positive when they face outwards.
double SignedVolume(const cadcam::tqTMesh<double>& mesh);

/// What keeps mesh from bounding a solid, or "" when nothing does: every edge must stand in exactly two
/// triangles that run it in opposite directions, no triangle may repeat a vertex, the vertices of one connected
/// shell must stand at distinct places (shared, not copied), and the volume must be positive.
std::string MeshDefects(const cadcam::tqTMesh<double>& mesh);

}  // namespace tqtest
