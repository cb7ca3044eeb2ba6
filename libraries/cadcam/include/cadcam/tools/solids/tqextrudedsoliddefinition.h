// tqExtrudedSolidDefinition: contours in a construction plane swept along an extrusion vector.
#pragma once

#include <vector>

#include "cadcam/geometry/tq2dcontour.h"
#include "cadcam/geometry/tqtpoint3d.h"
#include "cadcam/tools/solids/tqsoliddefinition.h"

namespace cadcam {

/// Contours in the plane whose normal is the construction plane, moved by PlaneZ along that normal, swept by
/// the extrusion vector. A contour inside an odd number of others is a hole.
template <class T>
class TQ_EXPORT tqExtrudedSolidDefinition : public tqSolidDefinition<T> {
public:
    /// No contours; extrusion vector (0, 0, 1), plane height 0, construction plane normal (0, 0, 1).
    explicit tqExtrudedSolidDefinition(measures::tqUnitsFactory::Units units);
    tqExtrudedSolidDefinition(measures::tqUnitsFactory::Units units, const tqTPoint3d<T>& extrusionVector,
                              T planeZ, const tqTPoint3d<T>& constructionPlane,
                              const std::vector<tq2dContour<T>>& contours);
    tqExtrudedSolidDefinition(const tqExtrudedSolidDefinition&);
    tqExtrudedSolidDefinition& operator=(const tqExtrudedSolidDefinition&);
    ~tqExtrudedSolidDefinition() override;

    const tqTPoint3d<T>& GetExtrusionVector() const { return m_extrusionVector; }
    T GetPlaneZ() const { return m_planeZ; }
    /// The normal of the construction plane; a direction, so a change of units leaves it.
    const tqTPoint3d<T>& GetConstructionPlane() const { return m_constructionPlane; }
    const std::vector<tq2dContour<T>>& GetContours() const { return m_contours; }

    void AcceptVisitor(tqSolidDefinitionVisitorGetter<T>& visitor) const override;

    /// Exact: units, both vectors, the plane height and the contours in order.
    bool operator==(const tqExtrudedSolidDefinition& other) const;
    bool operator!=(const tqExtrudedSolidDefinition& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    tqTPoint3d<T> m_extrusionVector;
    T m_planeZ;
    tqTPoint3d<T> m_constructionPlane;
    std::vector<tq2dContour<T>> m_contours;
};

extern template class TQ_EXPORT tqExtrudedSolidDefinition<double>;
extern template class TQ_EXPORT tqExtrudedSolidDefinition<float>;

}  // namespace cadcam
