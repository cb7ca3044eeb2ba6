// tqSolidDefinitionMeshCreator: the triangle mesh of a solid of any kind.
#pragma once

#include "cadcam/geometry/tqtmesh.h"
#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"
#include "misc/tqautopointer.h"

namespace cadcam {

/// Turns a solid into a closed, outward-oriented triangle mesh with shared vertices, in the solid's units.
/// Arcs become chords no farther than the chord tolerance from the arc: for a radius r, the smaller of the
/// positive ones among absTol and relTol·r. An empty solid gives a mesh without triangles. Failures
/// (tqcadcamException): 2174 an infinite wire, 2171 an extruded solid of zero volume, 2030 a turning holder of no
/// known type or hand, 3414 a contour turning solid of no known hand, 2177 a solid of no known kind.
class TQ_EXPORT tqSolidDefinitionMeshCreator : public tqSolidDefinitionVisitorGetter<double> {
public:
    using MeshPointer = misc::tqAutoPointer<tqTMesh<double>>;

    /// Throws tqcadcamException 2177 unless absTol > 0 or relTol > 0.
    tqSolidDefinitionMeshCreator(double absTol, double relTol);
    ~tqSolidDefinitionMeshCreator() override;

    /// The mesh of solid; the library tessellates with (0.0, 0.01).
    static MeshPointer Create(const tqSolidDefinition<double>& solid, double absTol, double relTol);
    /// The mesh of the solid visited last; null before any visit.
    const MeshPointer& GetMesh() const { return m_mesh; }

    void Visit(const tqWireSolidDefinition<double>& solid) override;
    void Visit(const tqContourTurningSolidDefinition<double>& solid) override;
    void Visit(const tqTurningSolidDefinition<double>& solid) override;
    void Visit(const tqMeshSolidDefinition<double>& solid) override;
    void Visit(const tqExtrudedSolidDefinition<double>& solid) override;
    void Visit(const tqRevolvedSolidDefinition<double>& solid) override;
    /// Fails with tqcadcamException 2177.
    [[noreturn]] void Visit(const tqSolidDefinition<double>& solid) override;

private:
    double m_absTol;
    double m_relTol;
    MeshPointer m_mesh;
};

}  // namespace cadcam
