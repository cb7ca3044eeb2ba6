// Mesh: a geometry given by a triangle mesh.
#pragma once

#include "cadcam/geometry/tqtmesh.h"
#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "tqWorkRig/model/geometry.h"

namespace tqWorkRig {

/// A triangle mesh geometry; copies share the mesh.
class TQ_EXPORT Mesh : public Geometry {
public:
    using MeshPointer = misc::tqAutoPointer<cadcam::tqTMesh<double>>;

    /// A geometry holding the given mesh, which may be null.
    Mesh(const MeshPointer& mesh, const tqstring& displayName);
    /// A geometry with a null mesh.
    explicit Mesh(const tqstring& displayName);
    Mesh(const Mesh& other);
    Mesh& operator=(const Mesh& other);
    ~Mesh() override;

    /// Calls visitor.Visit(const Mesh&).
    void AcceptVisitor(GeometryVisitor& visitor) const override;

    /// The same object, or Geometry equality and meshes of equal element counts (coordinates are not read);
    /// two null meshes are equal, one null mesh is not.
    bool operator==(const Mesh& other) const;
    bool operator!=(const Mesh& other) const { return !(*this == other); }

    /// The mesh pointer.
    const MeshPointer& GetMesh() const { return m_mesh; }
    /// The mesh pointer, writable.
    MeshPointer& GetMesh() { return m_mesh; }
    /// Shares the given mesh.
    void SetMesh(const MeshPointer& mesh) { m_mesh = mesh; }

private:
    MeshPointer m_mesh;
};

}  // namespace tqWorkRig
