// tqContainerMesh and tqTMesh: triangle meshes that carry a unit system.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "cadcam/geometry/tqtpoint3d.h"
#include "measures/tqmeasurable.h"
#include "misc/export.h"
#include "misc/tqautopointer.h"

namespace cadcam {

/// A triangle: three indices into the vertex array and the normal stored with it.
template <class N>
struct tqMeshTriangle {
    std::uint32_t v[3];
    N normal;
};

/// Vertices and triangles, each array behind a shared pointer; vertices scale with the unit system.
/// Triangles may share vertices (tessellation) or own three each (STL input, which is read as it stands).
template <class T, class V, class N>
class TQ_EXPORT tqContainerMesh : public measures::tqMeasurable {
public:
    using Vertex = V;
    using Normal = N;
    using Triangle = tqMeshTriangle<N>;

    explicit tqContainerMesh(measures::tqUnitsFactory::Units units = measures::tqUnitsFactory::Metric);
    /// Shares both arrays with the source.
    tqContainerMesh(const tqContainerMesh& other) = default;
    tqContainerMesh& operator=(const tqContainerMesh& other) = default;
    ~tqContainerMesh() override;

    const misc::tqAutoPointer<std::vector<V>>& GetVertices() const { return m_vertices; }
    misc::tqAutoPointer<std::vector<V>>& GetVertices() { return m_vertices; }
    const misc::tqAutoPointer<std::vector<Triangle>>& GetTriangles() const { return m_triangles; }
    misc::tqAutoPointer<std::vector<Triangle>>& GetTriangles() { return m_triangles; }

    std::size_t GetVertexCount() const { return m_vertices->size(); }
    std::size_t GetTriangleCount() const { return m_triangles->size(); }
    void Reserve(std::size_t vertices, std::size_t triangles);
    /// Appends a vertex and returns its index.
    std::uint32_t AddVertex(const V& vertex);
    /// Appends a triangle over existing vertices.
    void AddTriangle(std::uint32_t a, std::uint32_t b, std::uint32_t c, const N& normal);
    /// Appends a triangle with three vertices of its own.
    void AddTriangle(const V& a, const V& b, const V& c, const N& normal);
    /// The three corners of triangle i.
    const V& Corner(std::size_t triangle, int corner) const { return (*m_vertices)[(*m_triangles)[triangle].v[corner]]; }
    /// A deep copy, with arrays of its own.
    tqContainerMesh Clone() const;

    /// Equal when both arrays have the same lengths; the contents are not read.
    bool operator==(const tqContainerMesh& other) const;
    bool operator!=(const tqContainerMesh& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    misc::tqAutoPointer<std::vector<V>> m_vertices;
    misc::tqAutoPointer<std::vector<Triangle>> m_triangles;
};

/// The triangle mesh of the model.
template <class T>
class TQ_EXPORT tqTMesh : public tqContainerMesh<T, tqTPoint3d<T>, tqTPoint3d<T>> {
public:
    using Base = tqContainerMesh<T, tqTPoint3d<T>, tqTPoint3d<T>>;
    using Base::Base;
    tqTMesh(const Base& base) : Base(base) {}
    ~tqTMesh() override;
};

extern template class TQ_EXPORT tqContainerMesh<double, tqTPoint3d<double>, tqTPoint3d<double>>;
extern template class TQ_EXPORT tqContainerMesh<float, tqTPoint3d<float>, tqTPoint3d<float>>;
extern template class TQ_EXPORT tqTMesh<double>;
extern template class TQ_EXPORT tqTMesh<float>;

}  // namespace cadcam
