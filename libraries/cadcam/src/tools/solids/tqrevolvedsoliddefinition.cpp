// tqRevolvedSolidDefinition: instantiated for float and double.
#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"

#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"

namespace cadcam {

template <class T>
tqRevolvedSolidDefinition<T>::tqRevolvedSolidDefinition(measures::tqUnitsFactory::Units units)
    : tqSolidDefinition<T>(units) {}

template <class T>
tqRevolvedSolidDefinition<T>::tqRevolvedSolidDefinition(measures::tqUnitsFactory::Units units,
                                                        const tq2dContour<T>& profile)
    : tqSolidDefinition<T>(units), m_profile(profile) {}

template <class T>
tqRevolvedSolidDefinition<T>::tqRevolvedSolidDefinition(const tqRevolvedSolidDefinition&) = default;
template <class T>
tqRevolvedSolidDefinition<T>& tqRevolvedSolidDefinition<T>::operator=(const tqRevolvedSolidDefinition&) = default;
template <class T>
tqRevolvedSolidDefinition<T>::~tqRevolvedSolidDefinition() = default;

template <class T>
void tqRevolvedSolidDefinition<T>::AcceptVisitor(tqSolidDefinitionVisitorGetter<T>& visitor) const {
    visitor.Visit(*this);
}

template <class T>
bool tqRevolvedSolidDefinition<T>::operator==(const tqRevolvedSolidDefinition& other) const {
    return measures::tqMeasurable::operator==(other) && m_profile == other.m_profile;
}

template <class T>
void tqRevolvedSolidDefinition<T>::Scale(measures::tqUnitsFactory::Units, const double& factor) {
    // The items may be shared with other profiles: scale copies.
    auto scaled = m_profile.Clone().template StaticCast<tq2dContour<T>>();
    scaled->Scale(static_cast<T>(factor));
    m_profile = *scaled;
}

template class tqRevolvedSolidDefinition<double>;
template class tqRevolvedSolidDefinition<float>;

}  // namespace cadcam
