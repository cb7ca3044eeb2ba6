// Mesh: construction, visiting and equality by element counts.
#include "tqWorkRig/model/mesh.h"

#include "tqWorkRig/model/geometryvisitor.h"

namespace tqWorkRig {

Mesh::Mesh(const MeshPointer& mesh, const tqstring& displayName) : Geometry(displayName), m_mesh(mesh) {}

Mesh::Mesh(const tqstring& displayName) : Geometry(displayName) {}

Mesh::Mesh(const Mesh& other) = default;

Mesh& Mesh::operator=(const Mesh& other) = default;

Mesh::~Mesh() = default;

void Mesh::AcceptVisitor(GeometryVisitor& visitor) const { visitor.Visit(*this); }

bool Mesh::operator==(const Mesh& other) const {
    if (this == &other) return true;
    if (!Geometry::operator==(other)) return false;
    if (m_mesh.IsNull() || other.m_mesh.IsNull()) return m_mesh.IsNull() && other.m_mesh.IsNull();
    // tqTMesh equality compares the vertex and triangle counts only.
    return *m_mesh == *other.m_mesh;
}

}  // namespace tqWorkRig
