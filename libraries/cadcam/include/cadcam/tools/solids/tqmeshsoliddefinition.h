// tqMeshSolidDefinition: a solid given by a shared triangle mesh.
#pragma once

#include "cadcam/geometry/tqtmesh.h"
#include "cadcam/tools/solids/tqsoliddefinition.h"

namespace cadcam {

/// A triangle mesh, shared with whoever handed it in; a change of units scales a copy, never the shared mesh.
template <class T>
class TQ_EXPORT tqMeshSolidDefinition : public tqSolidDefinition<T> {
public:
    using MeshPointer = misc::tqAutoPointer<tqTMesh<T>>;

    /// An empty mesh of its own.
    explicit tqMeshSolidDefinition(measures::tqUnitsFactory::Units units);
    /// Shares mesh; a null mesh throws "Accessing TQ_NULL pointer".
    tqMeshSolidDefinition(measures::tqUnitsFactory::Units units, const MeshPointer& mesh);
    tqMeshSolidDefinition(const tqMeshSolidDefinition&);
    tqMeshSolidDefinition& operator=(const tqMeshSolidDefinition&);
    ~tqMeshSolidDefinition() override;

    const MeshPointer& GetMesh() const { return m_mesh; }

    void AcceptVisitor(tqSolidDefinitionVisitorGetter<T>& visitor) const override;

    /// Units, and meshes equal by the mesh's own equality.
    bool operator==(const tqMeshSolidDefinition& other) const;
    bool operator!=(const tqMeshSolidDefinition& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    MeshPointer m_mesh;
};

extern template class TQ_EXPORT tqMeshSolidDefinition<double>;
extern template class TQ_EXPORT tqMeshSolidDefinition<float>;

}  // namespace cadcam
