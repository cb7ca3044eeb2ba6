// tqMeshSolidDefinitionGetMesh: the triangle mesh that a mesh solid holds.
#pragma once

#include "cadcam/geometry/tqtmesh.h"
#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"
#include "misc/tqautopointer.h"

namespace cadcam {

/// Yields the shared mesh of a tqMeshSolidDefinition. Turning any other kind into triangles is the work of the
/// tessellation, not a getter's: other kinds fail with tqcadcamException 2172, the abstract base with 2177; a
/// failed visit leaves the getter as it was.
template <class T>
class TQ_EXPORT tqMeshSolidDefinitionGetMesh : public tqSolidDefinitionVisitorGetter<T> {
public:
    using MeshPointer = misc::tqAutoPointer<tqTMesh<T>>;

    /// Lets solid accept the getter.
    explicit tqMeshSolidDefinitionGetMesh(const tqSolidDefinition<T>& solid);
    ~tqMeshSolidDefinitionGetMesh() override;

    /// The mesh of solid, shared with it.
    static MeshPointer Get(const tqSolidDefinition<T>& solid);
    /// The mesh of the solid visited last, shared with it.
    const MeshPointer& GetMesh() const { return m_mesh; }

    void Visit(const tqWireSolidDefinition<T>& solid) override;
    void Visit(const tqContourTurningSolidDefinition<T>& solid) override;
    void Visit(const tqTurningSolidDefinition<T>& solid) override;
    void Visit(const tqMeshSolidDefinition<T>& solid) override;
    void Visit(const tqExtrudedSolidDefinition<T>& solid) override;
    void Visit(const tqRevolvedSolidDefinition<T>& solid) override;
    [[noreturn]] void Visit(const tqSolidDefinition<T>& solid) override;

private:
    MeshPointer m_mesh;
};

extern template class TQ_EXPORT tqMeshSolidDefinitionGetMesh<double>;
extern template class TQ_EXPORT tqMeshSolidDefinitionGetMesh<float>;

}  // namespace cadcam
