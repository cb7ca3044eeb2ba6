// tqCuttingPartDefinition: the part that cuts.
#pragma once

#include "cadcam/tools/parts/tqtoolpartdefinition.h"

namespace cadcam {

/// A part in the role of the part that cuts. A revolved solid's profile is checked with tqCuttingPartValidation when the part is made.
template <class T>
class TQ_EXPORT tqCuttingPartDefinition : public tqToolPartDefinition<T> {
public:
    using typename tqToolPartDefinition<T>::SolidPointer;

    /// No solid, in metric units.
    tqCuttingPartDefinition();
    /// A revolved solid whose profile breaks a rule throws tqcadcamException with the role's number.
    tqCuttingPartDefinition(measures::tqUnitsFactory::Units units, const SolidPointer& solid);
    tqCuttingPartDefinition(const tqCuttingPartDefinition&);
    tqCuttingPartDefinition& operator=(const tqCuttingPartDefinition&);
    ~tqCuttingPartDefinition() override;

    void AcceptVisitor(tqToolPartDefinitionVisitor<T>& visitor) const override;

    /// The same units and equal solids.
    bool operator==(const tqCuttingPartDefinition& other) const { return this->IsEqual(other); }
    bool operator!=(const tqCuttingPartDefinition& other) const { return !this->IsEqual(other); }
};

extern template class TQ_EXPORT tqCuttingPartDefinition<double>;
extern template class TQ_EXPORT tqCuttingPartDefinition<float>;

}  // namespace cadcam
