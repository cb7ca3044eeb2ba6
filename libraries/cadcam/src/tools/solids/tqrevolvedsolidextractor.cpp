// tqRevolvedSolidExtractor: instantiated for float and double.
#include "cadcam/tools/solids/tqrevolvedsolidextractor.h"

#include "cadcam/tools/solids/tqallsoliddefinitions.h"
#include "cadcam/tools/tqcadcamexception.h"

namespace cadcam {

template <class T>
tqRevolvedSolidExtractor<T>::tqRevolvedSolidExtractor(const tqSolidDefinition<T>& solid) {
    solid.AcceptVisitor(*this);
}

template <class T>
tqRevolvedSolidExtractor<T>::~tqRevolvedSolidExtractor() = default;

template <class T>
const tqRevolvedSolidDefinition<T>& tqRevolvedSolidExtractor<T>::Extract(const tqSolidDefinition<T>& solid) {
    return tqRevolvedSolidExtractor(solid).GetSolid();
}

template <class T>
void tqRevolvedSolidExtractor<T>::Visit(const tqWireSolidDefinition<T>&) {
    throw tqcadcamException(2170);
}
template <class T>
void tqRevolvedSolidExtractor<T>::Visit(const tqContourTurningSolidDefinition<T>&) {
    throw tqcadcamException(2170);
}
template <class T>
void tqRevolvedSolidExtractor<T>::Visit(const tqTurningSolidDefinition<T>&) {
    throw tqcadcamException(2170);
}
template <class T>
void tqRevolvedSolidExtractor<T>::Visit(const tqMeshSolidDefinition<T>&) {
    throw tqcadcamException(2170);
}
template <class T>
void tqRevolvedSolidExtractor<T>::Visit(const tqExtrudedSolidDefinition<T>&) {
    throw tqcadcamException(2170);
}
template <class T>
void tqRevolvedSolidExtractor<T>::Visit(const tqRevolvedSolidDefinition<T>& solid) {
    m_solid = &solid;
}

template <class T>
void tqRevolvedSolidExtractor<T>::Visit(const tqSolidDefinition<T>&) {
    throw tqcadcamException(2177);
}

template class tqRevolvedSolidExtractor<double>;
template class tqRevolvedSolidExtractor<float>;

}  // namespace cadcam
