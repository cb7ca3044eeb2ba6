// tqCuttingPartValidation: the profile rules for a cutting part, with its own numbers.
#pragma once

#include "cadcam/tools/validation/tqtoolpartprofilevalidation.h"

namespace cadcam {

/// Validates the profile of a cutting part.
template <class T>
class TQ_EXPORT tqCuttingPartValidation : public tqToolPartProfileValidation<T> {
public:
    tqCuttingPartValidation() = default;
    ~tqCuttingPartValidation() override;

protected:
    const tqProfileRuleNumbers& GetNumbers() const override;
};

extern template class TQ_EXPORT tqCuttingPartValidation<double>;
extern template class TQ_EXPORT tqCuttingPartValidation<float>;

}  // namespace cadcam
