// tqRevolvedSolidDefinition: a profile of lines and arcs revolved about the Y axis.
#pragma once

#include "cadcam/geometry/tq2dcontour.h"
#include "cadcam/tools/solids/tqsoliddefinition.h"

namespace cadcam {

/// The body of revolution of a profile (X the radius, Y the height). The profile is shared, not copied, by a
/// copy of the solid; Clone copies it.
template <class T>
class TQ_EXPORT tqRevolvedSolidDefinition : public tqSolidDefinition<T> {
public:
    /// An empty solid: no profile at all.
    explicit tqRevolvedSolidDefinition(measures::tqUnitsFactory::Units units);
    tqRevolvedSolidDefinition(measures::tqUnitsFactory::Units units, const tq2dContour<T>& profile);
    tqRevolvedSolidDefinition(const tqRevolvedSolidDefinition&);
    tqRevolvedSolidDefinition& operator=(const tqRevolvedSolidDefinition&);
    ~tqRevolvedSolidDefinition() override;

    const tq2dContour<T>& GetProfile() const { return m_profile; }

    void AcceptVisitor(tqSolidDefinitionVisitorGetter<T>& visitor) const override;

    /// Exact: the same units and equal profiles item by item.
    bool operator==(const tqRevolvedSolidDefinition& other) const;
    bool operator!=(const tqRevolvedSolidDefinition& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    tq2dContour<T> m_profile;
};

extern template class TQ_EXPORT tqRevolvedSolidDefinition<double>;
extern template class TQ_EXPORT tqRevolvedSolidDefinition<float>;

}  // namespace cadcam
