// tqArborValidation: the profile rules for an arbor, with its own numbers.
#pragma once

#include "cadcam/tools/validation/tqtoolpartprofilevalidation.h"

namespace cadcam {

/// Validates the profile of an arbor.
template <class T>
class TQ_EXPORT tqArborValidation : public tqToolPartProfileValidation<T> {
public:
    tqArborValidation() = default;
    ~tqArborValidation() override;

protected:
    const tqProfileRuleNumbers& GetNumbers() const override;
};

extern template class TQ_EXPORT tqArborValidation<double>;
extern template class TQ_EXPORT tqArborValidation<float>;

}  // namespace cadcam
