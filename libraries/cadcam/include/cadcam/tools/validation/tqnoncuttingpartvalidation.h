// tqNonCuttingPartValidation: the profile rules for a non-cutting part, with its own numbers.
#pragma once

#include "cadcam/tools/validation/tqtoolpartprofilevalidation.h"

namespace cadcam {

/// Validates the profile of a non-cutting part.
template <class T>
class TQ_EXPORT tqNonCuttingPartValidation : public tqToolPartProfileValidation<T> {
public:
    tqNonCuttingPartValidation() = default;
    ~tqNonCuttingPartValidation() override;

protected:
    const tqProfileRuleNumbers& GetNumbers() const override;
};

extern template class TQ_EXPORT tqNonCuttingPartValidation<double>;
extern template class TQ_EXPORT tqNonCuttingPartValidation<float>;

}  // namespace cadcam
