// tqNonCuttingPartValidation: the numbers of a non-cutting part profile.
#include "cadcam/tools/validation/tqnoncuttingpartvalidation.h"

namespace cadcam {

template <class T>
tqNonCuttingPartValidation<T>::~tqNonCuttingPartValidation() = default;

template <class T>
const tqProfileRuleNumbers& tqNonCuttingPartValidation<T>::GetNumbers() const {
    static const tqProfileRuleNumbers kNumbers{2245, 2199, 2323, 2324, 2207, 2203, false, 2201, 2023, 2319, 2320, 2321, 2322, 2211, 2146};
    return kNumbers;
}

template class tqNonCuttingPartValidation<double>;
template class tqNonCuttingPartValidation<float>;

}  // namespace cadcam
