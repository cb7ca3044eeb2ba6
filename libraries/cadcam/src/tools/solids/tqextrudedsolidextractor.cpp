// tqExtrudedSolidExtractor: instantiated for float and double.
#include "cadcam/tools/solids/tqextrudedsolidextractor.h"

#include "cadcam/tools/solids/tqallsoliddefinitions.h"
#include "cadcam/tools/tqcadcamexception.h"

namespace cadcam {

template <class T>
tqExtrudedSolidExtractor<T>::tqExtrudedSolidExtractor(const tqSolidDefinition<T>& solid) {
    solid.AcceptVisitor(*this);
}

template <class T>
tqExtrudedSolidExtractor<T>::~tqExtrudedSolidExtractor() = default;

template <class T>
const tqExtrudedSolidDefinition<T>& tqExtrudedSolidExtractor<T>::Extract(const tqSolidDefinition<T>& solid) {
    return tqExtrudedSolidExtractor(solid).GetSolid();
}

template <class T>
void tqExtrudedSolidExtractor<T>::Visit(const tqWireSolidDefinition<T>&) {
    throw tqcadcamException(2171);
}
template <class T>
void tqExtrudedSolidExtractor<T>::Visit(const tqContourTurningSolidDefinition<T>&) {
    throw tqcadcamException(2171);
}
template <class T>
void tqExtrudedSolidExtractor<T>::Visit(const tqTurningSolidDefinition<T>&) {
    throw tqcadcamException(2171);
}
template <class T>
void tqExtrudedSolidExtractor<T>::Visit(const tqMeshSolidDefinition<T>&) {
    throw tqcadcamException(2171);
}
template <class T>
void tqExtrudedSolidExtractor<T>::Visit(const tqExtrudedSolidDefinition<T>& solid) {
    m_solid = &solid;
}
template <class T>
void tqExtrudedSolidExtractor<T>::Visit(const tqRevolvedSolidDefinition<T>&) {
    throw tqcadcamException(2171);
}

template <class T>
void tqExtrudedSolidExtractor<T>::Visit(const tqSolidDefinition<T>&) {
    throw tqcadcamException(2177);
}

template class tqExtrudedSolidExtractor<double>;
template class tqExtrudedSolidExtractor<float>;

}  // namespace cadcam
