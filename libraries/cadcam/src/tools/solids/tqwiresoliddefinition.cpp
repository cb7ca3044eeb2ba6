// tqWireSolidDefinition: instantiated for float and double.
#include "cadcam/tools/solids/tqwiresoliddefinition.h"

#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"

namespace cadcam {

template <class T>
tqWireSolidDefinition<T>::tqWireSolidDefinition(measures::tqUnitsFactory::Units units, T wireDiameter,
                                                T wireLength, bool hasInfiniteLength)
    : tqSolidDefinition<T>(units),
      m_wireDiameter(wireDiameter),
      m_wireLength(wireLength),
      m_hasInfiniteLength(hasInfiniteLength) {}

template <class T>
tqWireSolidDefinition<T>::tqWireSolidDefinition(const tqWireSolidDefinition&) = default;
template <class T>
tqWireSolidDefinition<T>& tqWireSolidDefinition<T>::operator=(const tqWireSolidDefinition&) = default;
template <class T>
tqWireSolidDefinition<T>::~tqWireSolidDefinition() = default;

template <class T>
void tqWireSolidDefinition<T>::AcceptVisitor(tqSolidDefinitionVisitorGetter<T>& visitor) const {
    visitor.Visit(*this);
}

template <class T>
bool tqWireSolidDefinition<T>::operator==(const tqWireSolidDefinition& other) const {
    return measures::tqMeasurable::operator==(other) && m_wireDiameter == other.m_wireDiameter &&
           m_wireLength == other.m_wireLength && m_hasInfiniteLength == other.m_hasInfiniteLength;
}

template <class T>
void tqWireSolidDefinition<T>::Scale(measures::tqUnitsFactory::Units, const double& factor) {
    m_wireDiameter *= static_cast<T>(factor);
    m_wireLength *= static_cast<T>(factor);
}

template class tqWireSolidDefinition<double>;
template class tqWireSolidDefinition<float>;

}  // namespace cadcam
