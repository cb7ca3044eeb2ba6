// tqArborDefinition: the arbor between tool and holder.
#pragma once

#include "cadcam/tools/parts/tqtoolpartdefinition.h"

namespace cadcam {

/// A part in the role of the arbor between tool and holder. A revolved solid's profile is checked with tqArborValidation when the part is made.
template <class T>
class TQ_EXPORT tqArborDefinition : public tqToolPartDefinition<T> {
public:
    using typename tqToolPartDefinition<T>::SolidPointer;

    /// No solid, in metric units.
    tqArborDefinition();
    /// A revolved solid whose profile breaks a rule throws tqcadcamException with the role's number.
    tqArborDefinition(measures::tqUnitsFactory::Units units, const SolidPointer& solid);
    tqArborDefinition(const tqArborDefinition&);
    tqArborDefinition& operator=(const tqArborDefinition&);
    ~tqArborDefinition() override;

    void AcceptVisitor(tqToolPartDefinitionVisitor<T>& visitor) const override;

    /// The same units and equal solids.
    bool operator==(const tqArborDefinition& other) const { return this->IsEqual(other); }
    bool operator!=(const tqArborDefinition& other) const { return !this->IsEqual(other); }
};

extern template class TQ_EXPORT tqArborDefinition<double>;
extern template class TQ_EXPORT tqArborDefinition<float>;

}  // namespace cadcam
