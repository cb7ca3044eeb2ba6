// tqMeshSolidDefinitionGetMesh: instantiated for float and double.
#include "cadcam/tools/solids/tqmeshsoliddefinitiongetmesh.h"

#include "cadcam/tools/solids/tqallsoliddefinitions.h"
#include "cadcam/tools/tqcadcamexception.h"

namespace cadcam {

template <class T>
tqMeshSolidDefinitionGetMesh<T>::tqMeshSolidDefinitionGetMesh(const tqSolidDefinition<T>& solid) {
    solid.AcceptVisitor(*this);
}

template <class T>
tqMeshSolidDefinitionGetMesh<T>::~tqMeshSolidDefinitionGetMesh() = default;

template <class T>
typename tqMeshSolidDefinitionGetMesh<T>::MeshPointer tqMeshSolidDefinitionGetMesh<T>::Get(
    const tqSolidDefinition<T>& solid) {
    return tqMeshSolidDefinitionGetMesh(solid).GetMesh();
}

template <class T>
void tqMeshSolidDefinitionGetMesh<T>::Visit(const tqWireSolidDefinition<T>&) {
    throw tqcadcamException(2172);
}
template <class T>
void tqMeshSolidDefinitionGetMesh<T>::Visit(const tqContourTurningSolidDefinition<T>&) {
    throw tqcadcamException(2172);
}
template <class T>
void tqMeshSolidDefinitionGetMesh<T>::Visit(const tqTurningSolidDefinition<T>&) {
    throw tqcadcamException(2172);
}
template <class T>
void tqMeshSolidDefinitionGetMesh<T>::Visit(const tqMeshSolidDefinition<T>& solid) {
    m_mesh = solid.GetMesh();
}
template <class T>
void tqMeshSolidDefinitionGetMesh<T>::Visit(const tqExtrudedSolidDefinition<T>&) {
    throw tqcadcamException(2172);
}
template <class T>
void tqMeshSolidDefinitionGetMesh<T>::Visit(const tqRevolvedSolidDefinition<T>&) {
    throw tqcadcamException(2172);
}
template <class T>
void tqMeshSolidDefinitionGetMesh<T>::Visit(const tqSolidDefinition<T>&) {
    throw tqcadcamException(2177);
}

template class tqMeshSolidDefinitionGetMesh<double>;
template class tqMeshSolidDefinitionGetMesh<float>;

}  // namespace cadcam
