// tqHolderValidation: the numbers of a holder profile.
#include "cadcam/tools/validation/tqholdervalidation.h"

namespace cadcam {

template <class T>
tqHolderValidation<T>::~tqHolderValidation() = default;

template <class T>
const tqProfileRuleNumbers& tqHolderValidation<T>::GetNumbers() const {
    static const tqProfileRuleNumbers kNumbers{2318, 2134, 2323, 2324, 2209, 2205, false, 2135, 2023, 2319, 2320, 2321, 2322, 2213, 2146};
    return kNumbers;
}

template class tqHolderValidation<double>;
template class tqHolderValidation<float>;

}  // namespace cadcam
