// The parts of a tool placed in tool coordinates, and their meshes merged into one.
#include "gallery/placedparts.h"

#include <cmath>
#include <cstdint>
#include <utility>

#include "cadcam/tools/geometry/tqsoliddefinitionmeshcreator.h"

namespace gallery {

std::vector<PlacedPart> PlacedParts(const cadcam::tqGenericTool& generic) {
    std::vector<PlacedPart> placed;
    const std::pair<Role, const cadcam::tqGenericTool::Group*> groups[] = {
        {Role::Holder, &generic.GetHolderGroup()},
        {Role::Arbor, &generic.GetArborGroup()},
        {Role::NonCutting, &generic.GetNonCuttingGroup()},
        {Role::Cutting, &generic.GetCuttingGroup()},
    };
    for (const auto& [role, group] : groups) {
        for (const auto& element : *group) placed.push_back({role, element.m_part, *element.m_matrix});
    }
    return placed;
}

misc::tqAutoPointer<cadcam::tqTMesh<double>> PlacedMesh(const PlacedPart& placed) {
    using Mesh = cadcam::tqTMesh<double>;
    if (placed.part->GetSolid().IsNull()) return misc::tqAutoPointer<Mesh>(new Mesh(placed.part->GetUnits()));
    const auto own = cadcam::tqSolidDefinitionMeshCreator::Create(*placed.part->GetSolid(), 0.0, 0.01);
    // A copy with arrays of its own: a mesh solid's mesh is shared with the part and must stay where it is.
    misc::tqAutoPointer<Mesh> mesh(new Mesh(own->Clone()));
    for (auto& vertex : *mesh->GetVertices()) vertex = placed.matrix * vertex;
    for (auto& triangle : *mesh->GetTriangles()) {
        auto normal = placed.matrix.TransformVector(triangle.normal);
        const double length = std::sqrt(normal.Dot(normal));
        triangle.normal = length > 0 ? normal * (1.0 / length) : normal;
    }
    return mesh;
}

void AppendMesh(cadcam::tqTMesh<double>& target, const cadcam::tqTMesh<double>& source) {
    const auto offset = static_cast<std::uint32_t>(target.GetVertexCount());
    target.Reserve(target.GetVertexCount() + source.GetVertexCount(),
                   target.GetTriangleCount() + source.GetTriangleCount());
    for (const auto& vertex : *source.GetVertices()) target.AddVertex(vertex);
    for (const auto& t : *source.GetTriangles()) {
        target.AddTriangle(t.v[0] + offset, t.v[1] + offset, t.v[2] + offset, t.normal);
    }
}

}  // namespace gallery
