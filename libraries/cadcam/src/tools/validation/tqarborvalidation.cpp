// tqArborValidation: the numbers of an arbor profile.
#include "cadcam/tools/validation/tqarborvalidation.h"

namespace cadcam {

template <class T>
tqArborValidation<T>::~tqArborValidation() = default;

template <class T>
const tqProfileRuleNumbers& tqArborValidation<T>::GetNumbers() const {
    static const tqProfileRuleNumbers kNumbers{2317, 2136, 2323, 2324, 2208, 2204, false, 2137, 2023, 2319, 2320, 2321, 2322, 2212, 2146};
    return kNumbers;
}

template class tqArborValidation<double>;
template class tqArborValidation<float>;

}  // namespace cadcam
