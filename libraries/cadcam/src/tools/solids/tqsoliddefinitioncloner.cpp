// tqSolidDefinitionCloner: one copy per concrete kind; instantiated for float and double.
#include "cadcam/tools/solids/tqsoliddefinitioncloner.h"

#include "cadcam/tools/solids/tqallsoliddefinitions.h"
#include "cadcam/tools/tqcadcamexception.h"

namespace cadcam {

template <class T>
tqSolidDefinitionCloner<T>::~tqSolidDefinitionCloner() = default;

template <class T>
misc::tqAutoPointer<tqSolidDefinition<T>> tqSolidDefinitionCloner<T>::Clone(const tqSolidDefinition<T>& solid) {
    tqSolidDefinitionCloner cloner;
    solid.AcceptVisitor(cloner);
    return cloner.m_clone;
}

template <class T>
void tqSolidDefinitionCloner<T>::Visit(const tqWireSolidDefinition<T>& s) { m_clone = misc::tqAutoPointer<tqSolidDefinition<T>>(new tqWireSolidDefinition<T>(s)); }
template <class T>
void tqSolidDefinitionCloner<T>::Visit(const tqContourTurningSolidDefinition<T>& s) {
    m_clone = misc::tqAutoPointer<tqSolidDefinition<T>>(new tqContourTurningSolidDefinition<T>(s));
}
template <class T>
void tqSolidDefinitionCloner<T>::Visit(const tqTurningSolidDefinition<T>& s) {
    m_clone = misc::tqAutoPointer<tqSolidDefinition<T>>(new tqTurningSolidDefinition<T>(s));
}
template <class T>
void tqSolidDefinitionCloner<T>::Visit(const tqMeshSolidDefinition<T>& s) { m_clone = misc::tqAutoPointer<tqSolidDefinition<T>>(new tqMeshSolidDefinition<T>(s)); }
template <class T>
void tqSolidDefinitionCloner<T>::Visit(const tqExtrudedSolidDefinition<T>& s) {
    m_clone = misc::tqAutoPointer<tqSolidDefinition<T>>(new tqExtrudedSolidDefinition<T>(s));
}
template <class T>
void tqSolidDefinitionCloner<T>::Visit(const tqRevolvedSolidDefinition<T>& s) {
    m_clone = misc::tqAutoPointer<tqSolidDefinition<T>>(new tqRevolvedSolidDefinition<T>(s));
}
template <class T>
void tqSolidDefinitionCloner<T>::Visit(const tqSolidDefinition<T>&) {
    throw tqcadcamException(2183);
}

template class tqSolidDefinitionCloner<double>;
template class tqSolidDefinitionCloner<float>;

}  // namespace cadcam
