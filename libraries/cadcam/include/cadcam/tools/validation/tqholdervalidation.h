// tqHolderValidation: the profile rules for a holder, with its own numbers.
#pragma once

#include "cadcam/tools/validation/tqtoolpartprofilevalidation.h"

namespace cadcam {

/// Validates the profile of a holder.
template <class T>
class TQ_EXPORT tqHolderValidation : public tqToolPartProfileValidation<T> {
public:
    tqHolderValidation() = default;
    ~tqHolderValidation() override;

protected:
    const tqProfileRuleNumbers& GetNumbers() const override;
};

extern template class TQ_EXPORT tqHolderValidation<double>;
extern template class TQ_EXPORT tqHolderValidation<float>;

}  // namespace cadcam
