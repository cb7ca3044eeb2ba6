// tqNonCuttingPartDefinition: the shank between the cutting part and the arbor.
#pragma once

#include "cadcam/tools/parts/tqtoolpartdefinition.h"

namespace cadcam {

/// A part in the role of the shank between the cutting part and the arbor. A revolved solid's profile is checked with tqNonCuttingPartValidation when the part is made.
template <class T>
class TQ_EXPORT tqNonCuttingPartDefinition : public tqToolPartDefinition<T> {
public:
    using typename tqToolPartDefinition<T>::SolidPointer;

    /// No solid, in metric units.
    tqNonCuttingPartDefinition();
    /// A revolved solid whose profile breaks a rule throws tqcadcamException with the role's number.
    tqNonCuttingPartDefinition(measures::tqUnitsFactory::Units units, const SolidPointer& solid);
    tqNonCuttingPartDefinition(const tqNonCuttingPartDefinition&);
    tqNonCuttingPartDefinition& operator=(const tqNonCuttingPartDefinition&);
    ~tqNonCuttingPartDefinition() override;

    void AcceptVisitor(tqToolPartDefinitionVisitor<T>& visitor) const override;

    /// The same units and equal solids.
    bool operator==(const tqNonCuttingPartDefinition& other) const { return this->IsEqual(other); }
    bool operator!=(const tqNonCuttingPartDefinition& other) const { return !this->IsEqual(other); }
};

extern template class TQ_EXPORT tqNonCuttingPartDefinition<double>;
extern template class TQ_EXPORT tqNonCuttingPartDefinition<float>;

}  // namespace cadcam
