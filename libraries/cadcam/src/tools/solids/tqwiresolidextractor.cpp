// tqWireSolidExtractor: instantiated for float and double.
#include "cadcam/tools/solids/tqwiresolidextractor.h"

#include "cadcam/tools/solids/tqallsoliddefinitions.h"
#include "cadcam/tools/tqcadcamexception.h"

namespace cadcam {

template <class T>
tqWireSolidExtractor<T>::tqWireSolidExtractor(const tqSolidDefinition<T>& solid) {
    solid.AcceptVisitor(*this);
}

template <class T>
tqWireSolidExtractor<T>::~tqWireSolidExtractor() = default;

template <class T>
const tqWireSolidDefinition<T>& tqWireSolidExtractor<T>::Extract(const tqSolidDefinition<T>& solid) {
    return tqWireSolidExtractor(solid).GetSolid();
}

template <class T>
void tqWireSolidExtractor<T>::Visit(const tqWireSolidDefinition<T>& solid) {
    m_solid = &solid;
}
template <class T>
void tqWireSolidExtractor<T>::Visit(const tqContourTurningSolidDefinition<T>&) {
    throw tqcadcamException(2173);
}
template <class T>
void tqWireSolidExtractor<T>::Visit(const tqTurningSolidDefinition<T>&) {
    throw tqcadcamException(2173);
}
template <class T>
void tqWireSolidExtractor<T>::Visit(const tqMeshSolidDefinition<T>&) {
    throw tqcadcamException(2173);
}
template <class T>
void tqWireSolidExtractor<T>::Visit(const tqExtrudedSolidDefinition<T>&) {
    throw tqcadcamException(2173);
}
template <class T>
void tqWireSolidExtractor<T>::Visit(const tqRevolvedSolidDefinition<T>&) {
    throw tqcadcamException(2173);
}

template <class T>
void tqWireSolidExtractor<T>::Visit(const tqSolidDefinition<T>&) {
    throw tqcadcamException(2177);
}

template class tqWireSolidExtractor<double>;
template class tqWireSolidExtractor<float>;

}  // namespace cadcam
