// tqExtrudedSolidDefinition: instantiated for float and double.
#include "cadcam/tools/solids/tqextrudedsoliddefinition.h"

#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"

namespace cadcam {

template <class T>
tqExtrudedSolidDefinition<T>::tqExtrudedSolidDefinition(measures::tqUnitsFactory::Units units)
    : tqSolidDefinition<T>(units), m_extrusionVector(0, 0, 1), m_planeZ(0), m_constructionPlane(0, 0, 1) {}

template <class T>
tqExtrudedSolidDefinition<T>::tqExtrudedSolidDefinition(measures::tqUnitsFactory::Units units,
                                                        const tqTPoint3d<T>& extrusionVector, T planeZ,
                                                        const tqTPoint3d<T>& constructionPlane,
                                                        const std::vector<tq2dContour<T>>& contours)
    : tqSolidDefinition<T>(units),
      m_extrusionVector(extrusionVector),
      m_planeZ(planeZ),
      m_constructionPlane(constructionPlane),
      m_contours(contours) {}

template <class T>
tqExtrudedSolidDefinition<T>::tqExtrudedSolidDefinition(const tqExtrudedSolidDefinition&) = default;
template <class T>
tqExtrudedSolidDefinition<T>& tqExtrudedSolidDefinition<T>::operator=(const tqExtrudedSolidDefinition&) = default;
template <class T>
tqExtrudedSolidDefinition<T>::~tqExtrudedSolidDefinition() = default;

template <class T>
void tqExtrudedSolidDefinition<T>::AcceptVisitor(tqSolidDefinitionVisitorGetter<T>& visitor) const {
    visitor.Visit(*this);
}

template <class T>
bool tqExtrudedSolidDefinition<T>::operator==(const tqExtrudedSolidDefinition& other) const {
    return measures::tqMeasurable::operator==(other) && m_extrusionVector == other.m_extrusionVector &&
           m_planeZ == other.m_planeZ && m_constructionPlane == other.m_constructionPlane &&
           m_contours == other.m_contours;
}

template <class T>
void tqExtrudedSolidDefinition<T>::Scale(measures::tqUnitsFactory::Units, const double& factor) {
    const T f = static_cast<T>(factor);
    m_extrusionVector = tqTPoint3d<T>(m_extrusionVector.x * f, m_extrusionVector.y * f, m_extrusionVector.z * f);
    m_planeZ *= f;
    for (auto& contour : m_contours) {
        // The items may be shared with other contours: scale copies.
        auto scaled = contour.Clone().template StaticCast<tq2dContour<T>>();
        scaled->Scale(f);
        contour = *scaled;
    }
}

template class tqExtrudedSolidDefinition<double>;
template class tqExtrudedSolidDefinition<float>;

}  // namespace cadcam
