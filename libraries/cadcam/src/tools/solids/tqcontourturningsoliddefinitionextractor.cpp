// tqContourTurningSolidDefinitionExtractor: instantiated for float and double.
#include "cadcam/tools/solids/tqcontourturningsoliddefinitionextractor.h"

#include "cadcam/tools/solids/tqallsoliddefinitions.h"
#include "cadcam/tools/tqcadcamexception.h"

namespace cadcam {

template <class T>
tqContourTurningSolidDefinitionExtractor<T>::tqContourTurningSolidDefinitionExtractor(
    const tqSolidDefinition<T>& solid) {
    solid.AcceptVisitor(*this);
}

template <class T>
tqContourTurningSolidDefinitionExtractor<T>::~tqContourTurningSolidDefinitionExtractor() = default;

template <class T>
const tqContourTurningSolidDefinition<T>& tqContourTurningSolidDefinitionExtractor<T>::Extract(
    const tqSolidDefinition<T>& solid) {
    return tqContourTurningSolidDefinitionExtractor(solid).GetSolid();
}

template <class T>
void tqContourTurningSolidDefinitionExtractor<T>::Visit(const tqWireSolidDefinition<T>&) {
    throw tqcadcamException(3414);
}
template <class T>
void tqContourTurningSolidDefinitionExtractor<T>::Visit(const tqContourTurningSolidDefinition<T>& solid) {
    m_solid = &solid;
}
template <class T>
void tqContourTurningSolidDefinitionExtractor<T>::Visit(const tqTurningSolidDefinition<T>&) {
    throw tqcadcamException(3414);
}
template <class T>
void tqContourTurningSolidDefinitionExtractor<T>::Visit(const tqMeshSolidDefinition<T>&) {
    throw tqcadcamException(3414);
}
template <class T>
void tqContourTurningSolidDefinitionExtractor<T>::Visit(const tqExtrudedSolidDefinition<T>&) {
    throw tqcadcamException(3414);
}
template <class T>
void tqContourTurningSolidDefinitionExtractor<T>::Visit(const tqRevolvedSolidDefinition<T>&) {
    throw tqcadcamException(3414);
}

template <class T>
void tqContourTurningSolidDefinitionExtractor<T>::Visit(const tqSolidDefinition<T>&) {
    throw tqcadcamException(2177);
}

template class tqContourTurningSolidDefinitionExtractor<double>;
template class tqContourTurningSolidDefinitionExtractor<float>;

}  // namespace cadcam
