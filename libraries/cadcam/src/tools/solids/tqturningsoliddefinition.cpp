// tqTurningSolidDefinition: fields, validation and scaling; instantiated for float and double.
#include "cadcam/tools/solids/tqturningsoliddefinition.h"

#include <algorithm>

#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"
#include "cadcam/tools/tqcadcamexception.h"

namespace cadcam {

template <class T>
tqTurningSolidDefinition<T>::tqTurningSolidDefinition(measures::tqUnitsFactory::Units units)
    : tqTypedExtrudedSolidDefinition<T>(units, 0, tqTypedExtrudedSolidDefinition<T>::H_RIGHT,
                                        tqTypedExtrudedSolidDefinition<T>::SK_RECTANGULAR),
      m_insert(IN_TRIANGLE),
      m_type(GENERIC_TYPE_A),
      m_parameters{} {}

template <class T>
tqTurningSolidDefinition<T>::tqTurningSolidDefinition(measures::tqUnitsFactory::Units units, T height, Hand hand,
                                                      Shank shank, Insert insert, Type type, T a, T b, T c, T d,
                                                      T e, T f, T g, T h, T i)
    : tqTypedExtrudedSolidDefinition<T>(units, height, hand, shank),
      m_insert(insert),
      m_type(type),
      m_parameters{a, b, c, d, e, f, g, h, i} {
    Validate();
}

template <class T>
tqTurningSolidDefinition<T>::tqTurningSolidDefinition(const tqTurningSolidDefinition&) = default;
template <class T>
tqTurningSolidDefinition<T>& tqTurningSolidDefinition<T>::operator=(const tqTurningSolidDefinition&) = default;
template <class T>
tqTurningSolidDefinition<T>::~tqTurningSolidDefinition() = default;

template <class T>
T tqTurningSolidDefinition<T>::GetParameter(char letter) const {
    if (letter < 'A' || letter > 'I') throw tqcadcamException(2031);
    return m_parameters[letter - 'A'];
}

template <class T>
void tqTurningSolidDefinition<T>::SetParameter(char letter, T value) {
    if (letter < 'A' || letter > 'I') throw tqcadcamException(2031);
    m_parameters[letter - 'A'] = value;
}

template <class T>
void tqTurningSolidDefinition<T>::Validate() const {}

template <class T>
void tqTurningSolidDefinition<T>::AcceptVisitor(tqSolidDefinitionVisitorGetter<T>& visitor) const {
    visitor.Visit(*this);
}

template <class T>
bool tqTurningSolidDefinition<T>::operator==(const tqTurningSolidDefinition& other) const {
    return this->BaseEquals(other) && m_insert == other.m_insert && m_type == other.m_type &&
           m_parameters == other.m_parameters;
}

template <class T>
void tqTurningSolidDefinition<T>::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    tqTypedExtrudedSolidDefinition<T>::Scale(units, factor);
    for (T& value : m_parameters) value *= static_cast<T>(factor);
}

template class tqTurningSolidDefinition<double>;
template class tqTurningSolidDefinition<float>;

}  // namespace cadcam
