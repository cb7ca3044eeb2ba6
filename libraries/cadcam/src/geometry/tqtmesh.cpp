// Triangle meshes, instantiated for float and double.
#include "cadcam/geometry/tqtmesh.h"

namespace cadcam {

template <class T, class V, class N>
tqContainerMesh<T, V, N>::tqContainerMesh(measures::tqUnitsFactory::Units units)
    : measures::tqMeasurable(units), m_vertices(new std::vector<V>()), m_triangles(new std::vector<Triangle>()) {}

template <class T, class V, class N>
tqContainerMesh<T, V, N>::~tqContainerMesh() = default;

template <class T, class V, class N>
void tqContainerMesh<T, V, N>::Reserve(std::size_t vertices, std::size_t triangles) {
    m_vertices->reserve(vertices);
    m_triangles->reserve(triangles);
}

template <class T, class V, class N>
std::uint32_t tqContainerMesh<T, V, N>::AddVertex(const V& vertex) {
    m_vertices->push_back(vertex);
    return static_cast<std::uint32_t>(m_vertices->size() - 1);
}

template <class T, class V, class N>
void tqContainerMesh<T, V, N>::AddTriangle(std::uint32_t a, std::uint32_t b, std::uint32_t c, const N& normal) {
    m_triangles->push_back(Triangle{{a, b, c}, normal});
}

template <class T, class V, class N>
void tqContainerMesh<T, V, N>::AddTriangle(const V& a, const V& b, const V& c, const N& normal) {
    std::vector<V>& vertices = *m_vertices;
    const auto first = static_cast<std::uint32_t>(vertices.size());
    vertices.push_back(a);
    vertices.push_back(b);
    vertices.push_back(c);
    m_triangles->push_back(Triangle{{first, first + 1, first + 2}, normal});
}

template <class T, class V, class N>
tqContainerMesh<T, V, N> tqContainerMesh<T, V, N>::Clone() const {
    tqContainerMesh copy(GetUnits());
    *copy.m_vertices = *m_vertices;
    *copy.m_triangles = *m_triangles;
    return copy;
}

template <class T, class V, class N>
bool tqContainerMesh<T, V, N>::operator==(const tqContainerMesh& other) const {
    return m_vertices->size() == other.m_vertices->size() && m_triangles->size() == other.m_triangles->size();
}

template <class T, class V, class N>
void tqContainerMesh<T, V, N>::Scale(measures::tqUnitsFactory::Units, const double& factor) {
    for (V& v : *m_vertices) v *= static_cast<T>(factor);
}

template <class T>
tqTMesh<T>::~tqTMesh() = default;

template class tqContainerMesh<double, tqTPoint3d<double>, tqTPoint3d<double>>;
template class tqContainerMesh<float, tqTPoint3d<float>, tqTPoint3d<float>>;
template class tqTMesh<double>;
template class tqTMesh<float>;

}  // namespace cadcam
