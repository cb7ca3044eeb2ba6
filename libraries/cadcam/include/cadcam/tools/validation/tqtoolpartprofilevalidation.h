// tqToolPartProfileValidation: the profile rules for a tool part profile of no particular role, with its own numbers.
#pragma once

#include "cadcam/tools/validation/tqprofilevalidation.h"

namespace cadcam {

/// Validates the profile of a tool part profile of no particular role.
template <class T>
class TQ_EXPORT tqToolPartProfileValidation : public tqProfileValidation<T> {
public:
    tqToolPartProfileValidation() = default;
    ~tqToolPartProfileValidation() override;

protected:
    const tqProfileRuleNumbers& GetNumbers() const override;
};

extern template class TQ_EXPORT tqToolPartProfileValidation<double>;
extern template class TQ_EXPORT tqToolPartProfileValidation<float>;

}  // namespace cadcam
