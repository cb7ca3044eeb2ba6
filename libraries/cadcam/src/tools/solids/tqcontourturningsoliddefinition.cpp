// tqContourTurningSolidDefinition: the check of its contour; instantiated for float and double.
#include "cadcam/tools/solids/tqcontourturningsoliddefinition.h"

#include "cadcam/geometry/tq2dcontourproperties.h"
#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"
#include "cadcam/tools/tqcadcamexception.h"

namespace cadcam {

template <class T>
tqContourTurningSolidDefinition<T>::tqContourTurningSolidDefinition(measures::tqUnitsFactory::Units units, T height,
                                                                    Hand hand, Shank shank,
                                                                    const tq2dContour<T>& contour)
    : tqTypedExtrudedSolidDefinition<T>(units, height, hand, shank), m_contour(contour) {
    if (!tqIsClosedContinuousAndSimple(contour)) throw tqcadcamException(3415);
}

template <class T>
tqContourTurningSolidDefinition<T>::tqContourTurningSolidDefinition(const tqContourTurningSolidDefinition&) = default;
template <class T>
tqContourTurningSolidDefinition<T>& tqContourTurningSolidDefinition<T>::operator=(
    const tqContourTurningSolidDefinition&) = default;
template <class T>
tqContourTurningSolidDefinition<T>::~tqContourTurningSolidDefinition() = default;

template <class T>
void tqContourTurningSolidDefinition<T>::AcceptVisitor(tqSolidDefinitionVisitorGetter<T>& visitor) const {
    visitor.Visit(*this);
}

template <class T>
bool tqContourTurningSolidDefinition<T>::operator==(const tqContourTurningSolidDefinition& other) const {
    return this->BaseEquals(other) && m_contour == other.m_contour;
}

template <class T>
void tqContourTurningSolidDefinition<T>::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    tqTypedExtrudedSolidDefinition<T>::Scale(units, factor);
    auto scaled = m_contour.Clone().template StaticCast<tq2dContour<T>>();
    scaled->Scale(static_cast<T>(factor));
    m_contour = *scaled;
}

template class tqContourTurningSolidDefinition<double>;
template class tqContourTurningSolidDefinition<float>;

}  // namespace cadcam
