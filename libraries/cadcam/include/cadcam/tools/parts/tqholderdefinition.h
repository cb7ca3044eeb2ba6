// tqHolderDefinition: the holder that takes the tool into the spindle or turret.
#pragma once

#include "cadcam/tools/parts/tqtoolpartdefinition.h"

namespace cadcam {

/// A part in the role of the holder that takes the tool into the spindle or turret. A revolved solid's profile is checked with tqHolderValidation when the part is made.
template <class T>
class TQ_EXPORT tqHolderDefinition : public tqToolPartDefinition<T> {
public:
    using typename tqToolPartDefinition<T>::SolidPointer;

    /// No solid, in metric units.
    tqHolderDefinition();
    /// A revolved solid whose profile breaks a rule throws tqcadcamException with the role's number.
    tqHolderDefinition(measures::tqUnitsFactory::Units units, const SolidPointer& solid);
    tqHolderDefinition(const tqHolderDefinition&);
    tqHolderDefinition& operator=(const tqHolderDefinition&);
    ~tqHolderDefinition() override;

    void AcceptVisitor(tqToolPartDefinitionVisitor<T>& visitor) const override;

    /// The same units and equal solids.
    bool operator==(const tqHolderDefinition& other) const { return this->IsEqual(other); }
    bool operator!=(const tqHolderDefinition& other) const { return !this->IsEqual(other); }
};

extern template class TQ_EXPORT tqHolderDefinition<double>;
extern template class TQ_EXPORT tqHolderDefinition<float>;

}  // namespace cadcam
