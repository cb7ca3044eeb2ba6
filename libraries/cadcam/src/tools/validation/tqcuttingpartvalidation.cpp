// tqCuttingPartValidation: the numbers of a cutting part profile.
#include "cadcam/tools/validation/tqcuttingpartvalidation.h"

namespace cadcam {

template <class T>
tqCuttingPartValidation<T>::~tqCuttingPartValidation() = default;

template <class T>
const tqProfileRuleNumbers& tqCuttingPartValidation<T>::GetNumbers() const {
    static const tqProfileRuleNumbers kNumbers{2244, 2198, 2323, 2324, 2206, 2202, false, 2200, 2023, 2319, 2320, 2321, 2322, 2210, 2146};
    return kNumbers;
}

template class tqCuttingPartValidation<double>;
template class tqCuttingPartValidation<float>;

}  // namespace cadcam
