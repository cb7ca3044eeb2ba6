// The parts of a tool placed in tool coordinates, and their meshes merged into one.
#pragma once

#include <vector>

#include "cadcam/geometry/tqmatrix.h"
#include "cadcam/geometry/tqtmesh.h"
#include "cadcam/tools/other/tqgenerictool.h"
#include "cadcam/tools/parts/tqtoolpartdefinition.h"
#include "misc/tqautopointer.h"

namespace gallery {

/// The four groups of a tool, in the order they are drawn (the mount behind, the cutting part in front).
enum class Role { Holder, Arbor, NonCutting, Cutting };

/// One element of the generic form: a part, what it is for, and where it stands in the tool.
struct PlacedPart {
    Role role;
    misc::tqAutoPointer<cadcam::tqToolPartDefinition<double>> part;
    cadcam::tqMatrix<double, 4, 4> matrix;
};

/// The elements of the generic form, holder group first and cutting group last.
std::vector<PlacedPart> PlacedParts(const cadcam::tqGenericTool& generic);

/// The mesh of one placed part in tool coordinates, at the library's tolerances (0, 0.01); a part without a
/// solid gives no triangles.
misc::tqAutoPointer<cadcam::tqTMesh<double>> PlacedMesh(const PlacedPart& placed);

/// Appends a mesh to another, keeping its shared vertices: its triangles refer to its own copied vertices.
void AppendMesh(cadcam::tqTMesh<double>& target, const cadcam::tqTMesh<double>& source);

}  // namespace gallery
