// tqSolidDefinitionTypeFinder: one answer per slot; instantiated for float and double.
#include "cadcam/tools/solids/tqsoliddefinitiontypefinder.h"

#include "cadcam/tools/solids/tqallsoliddefinitions.h"
#include "cadcam/tools/tqcadcamexception.h"

namespace cadcam {

template <class T>
tqSolidDefinitionTypeFinder<T>::tqSolidDefinitionTypeFinder(const tqSolidDefinition<T>& solid) {
    solid.AcceptVisitor(*this);
}

template <class T>
tqSolidDefinitionTypeFinder<T>::~tqSolidDefinitionTypeFinder() = default;

template <class T>
tqSolidDefinitionType tqSolidDefinitionTypeFinder<T>::Find(const tqSolidDefinition<T>& solid) {
    return tqSolidDefinitionTypeFinder(solid).GetType();
}

template <class T>
void tqSolidDefinitionTypeFinder<T>::Visit(const tqWireSolidDefinition<T>&) {
    m_type = SDT_WIRE;
}
template <class T>
void tqSolidDefinitionTypeFinder<T>::Visit(const tqContourTurningSolidDefinition<T>&) {
    m_type = SDT_CONTOUR_TURNING;
}
template <class T>
void tqSolidDefinitionTypeFinder<T>::Visit(const tqTurningSolidDefinition<T>&) {
    m_type = SDT_TURNING;
}
template <class T>
void tqSolidDefinitionTypeFinder<T>::Visit(const tqMeshSolidDefinition<T>&) {
    m_type = SDT_MESH;
}
template <class T>
void tqSolidDefinitionTypeFinder<T>::Visit(const tqExtrudedSolidDefinition<T>&) {
    m_type = SDT_EXTRUDED;
}
template <class T>
void tqSolidDefinitionTypeFinder<T>::Visit(const tqRevolvedSolidDefinition<T>&) {
    m_type = SDT_REVOLVED;
}
template <class T>
void tqSolidDefinitionTypeFinder<T>::Visit(const tqSolidDefinition<T>&) {
    throw tqcadcamException(2183);
}

template class tqSolidDefinitionTypeFinder<double>;
template class tqSolidDefinitionTypeFinder<float>;

}  // namespace cadcam
