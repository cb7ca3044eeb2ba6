// tqTypedExtrudedSolidDefinition: instantiated for float and double.
#include "cadcam/tools/solids/tqtypedextrudedsoliddefinition.h"

namespace cadcam {

template <class T>
tqTypedExtrudedSolidDefinition<T>::tqTypedExtrudedSolidDefinition(measures::tqUnitsFactory::Units units, T height,
                                                                  Hand hand, Shank shank)
    : tqSolidDefinition<T>(units), m_height(height), m_hand(hand), m_shank(shank) {}

template <class T>
tqTypedExtrudedSolidDefinition<T>::~tqTypedExtrudedSolidDefinition() = default;

template <class T>
bool tqTypedExtrudedSolidDefinition<T>::BaseEquals(const tqTypedExtrudedSolidDefinition& other) const {
    return measures::tqMeasurable::operator==(other) && m_height == other.m_height && m_hand == other.m_hand &&
           m_shank == other.m_shank;
}

template <class T>
void tqTypedExtrudedSolidDefinition<T>::Scale(measures::tqUnitsFactory::Units, const double& factor) {
    m_height *= static_cast<T>(factor);
}

template class tqTypedExtrudedSolidDefinition<double>;
template class tqTypedExtrudedSolidDefinition<float>;

}  // namespace cadcam
