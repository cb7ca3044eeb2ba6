// tqMeshSolidExtractor: instantiated for float and double.
#include "cadcam/tools/solids/tqmeshsolidextractor.h"

#include "cadcam/tools/solids/tqallsoliddefinitions.h"
#include "cadcam/tools/tqcadcamexception.h"

namespace cadcam {

template <class T>
tqMeshSolidExtractor<T>::tqMeshSolidExtractor(const tqSolidDefinition<T>& solid) {
    solid.AcceptVisitor(*this);
}

template <class T>
tqMeshSolidExtractor<T>::~tqMeshSolidExtractor() = default;

template <class T>
const tqMeshSolidDefinition<T>& tqMeshSolidExtractor<T>::Extract(const tqSolidDefinition<T>& solid) {
    return tqMeshSolidExtractor(solid).GetSolid();
}

template <class T>
void tqMeshSolidExtractor<T>::Visit(const tqWireSolidDefinition<T>&) {
    throw tqcadcamException(2172);
}
template <class T>
void tqMeshSolidExtractor<T>::Visit(const tqContourTurningSolidDefinition<T>&) {
    throw tqcadcamException(2172);
}
template <class T>
void tqMeshSolidExtractor<T>::Visit(const tqTurningSolidDefinition<T>&) {
    throw tqcadcamException(2172);
}
template <class T>
void tqMeshSolidExtractor<T>::Visit(const tqMeshSolidDefinition<T>& solid) {
    m_solid = &solid;
}
template <class T>
void tqMeshSolidExtractor<T>::Visit(const tqExtrudedSolidDefinition<T>&) {
    throw tqcadcamException(2172);
}
template <class T>
void tqMeshSolidExtractor<T>::Visit(const tqRevolvedSolidDefinition<T>&) {
    throw tqcadcamException(2172);
}

template <class T>
void tqMeshSolidExtractor<T>::Visit(const tqSolidDefinition<T>&) {
    throw tqcadcamException(2177);
}

template class tqMeshSolidExtractor<double>;
template class tqMeshSolidExtractor<float>;

}  // namespace cadcam
