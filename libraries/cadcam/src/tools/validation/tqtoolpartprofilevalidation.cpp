// tqToolPartProfileValidation: the numbers of a tool part profile of no role.
#include "cadcam/tools/validation/tqtoolpartprofilevalidation.h"

namespace cadcam {

template <class T>
tqToolPartProfileValidation<T>::~tqToolPartProfileValidation() = default;

template <class T>
const tqProfileRuleNumbers& tqToolPartProfileValidation<T>::GetNumbers() const {
    static const tqProfileRuleNumbers kNumbers{2243, 2340, 2323, 2324, 2161, 2160, false, 2144, 2023, 2319, 2320, 2321, 2322, 2243, 2146};
    return kNumbers;
}

template class tqToolPartProfileValidation<double>;
template class tqToolPartProfileValidation<float>;

}  // namespace cadcam
