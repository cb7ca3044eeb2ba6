// tqMeshSolidDefinition: instantiated for float and double.
#include "cadcam/tools/solids/tqmeshsoliddefinition.h"

#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"

namespace cadcam {

template <class T>
tqMeshSolidDefinition<T>::tqMeshSolidDefinition(measures::tqUnitsFactory::Units units)
    : tqSolidDefinition<T>(units), m_mesh(new tqTMesh<T>()) {}

template <class T>
tqMeshSolidDefinition<T>::tqMeshSolidDefinition(measures::tqUnitsFactory::Units units, const MeshPointer& mesh)
    : tqSolidDefinition<T>(units), m_mesh(mesh) {
    (void)*mesh;  // a null mesh is refused with the null-pointer failure
}

template <class T>
tqMeshSolidDefinition<T>::tqMeshSolidDefinition(const tqMeshSolidDefinition&) = default;
template <class T>
tqMeshSolidDefinition<T>& tqMeshSolidDefinition<T>::operator=(const tqMeshSolidDefinition&) = default;
template <class T>
tqMeshSolidDefinition<T>::~tqMeshSolidDefinition() = default;

template <class T>
void tqMeshSolidDefinition<T>::AcceptVisitor(tqSolidDefinitionVisitorGetter<T>& visitor) const {
    visitor.Visit(*this);
}

template <class T>
bool tqMeshSolidDefinition<T>::operator==(const tqMeshSolidDefinition& other) const {
    return measures::tqMeasurable::operator==(other) && *m_mesh == *other.m_mesh;
}

template <class T>
void tqMeshSolidDefinition<T>::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    // The mesh may be shared: scale a deep copy.
    MeshPointer scaled(new tqTMesh<T>(m_mesh->Clone()));
    measures::tqMeasurable::ScaleNested(*scaled, units, factor);
    m_mesh = scaled;
}

template class tqMeshSolidDefinition<double>;
template class tqMeshSolidDefinition<float>;

}  // namespace cadcam
