// tqTurningSolidDefinitionExtractor: instantiated for float and double.
#include "cadcam/tools/solids/tqturningsoliddefinitionextractor.h"

#include "cadcam/tools/solids/tqallsoliddefinitions.h"
#include "cadcam/tools/tqcadcamexception.h"

namespace cadcam {

template <class T>
tqTurningSolidDefinitionExtractor<T>::tqTurningSolidDefinitionExtractor(const tqSolidDefinition<T>& solid) {
    solid.AcceptVisitor(*this);
}

template <class T>
tqTurningSolidDefinitionExtractor<T>::~tqTurningSolidDefinitionExtractor() = default;

template <class T>
const tqTurningSolidDefinition<T>& tqTurningSolidDefinitionExtractor<T>::Extract(const tqSolidDefinition<T>& solid) {
    return tqTurningSolidDefinitionExtractor(solid).GetSolid();
}

template <class T>
void tqTurningSolidDefinitionExtractor<T>::Visit(const tqWireSolidDefinition<T>&) {
    throw tqcadcamException(2030);
}
template <class T>
void tqTurningSolidDefinitionExtractor<T>::Visit(const tqContourTurningSolidDefinition<T>&) {
    throw tqcadcamException(2030);
}
template <class T>
void tqTurningSolidDefinitionExtractor<T>::Visit(const tqTurningSolidDefinition<T>& solid) {
    m_solid = &solid;
}
template <class T>
void tqTurningSolidDefinitionExtractor<T>::Visit(const tqMeshSolidDefinition<T>&) {
    throw tqcadcamException(2030);
}
template <class T>
void tqTurningSolidDefinitionExtractor<T>::Visit(const tqExtrudedSolidDefinition<T>&) {
    throw tqcadcamException(2030);
}
template <class T>
void tqTurningSolidDefinitionExtractor<T>::Visit(const tqRevolvedSolidDefinition<T>&) {
    throw tqcadcamException(2030);
}

template <class T>
void tqTurningSolidDefinitionExtractor<T>::Visit(const tqSolidDefinition<T>&) {
    throw tqcadcamException(2177);
}

template class tqTurningSolidDefinitionExtractor<double>;
template class tqTurningSolidDefinitionExtractor<float>;

}  // namespace cadcam
