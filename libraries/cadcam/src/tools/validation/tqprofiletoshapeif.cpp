// tqProfileToShapeIf: instantiated for float and double.
#include "cadcam/tools/validation/tqprofiletoshapeif.h"

namespace cadcam {

template <class T>
tqProfileToShapeIf<T>::~tqProfileToShapeIf() = default;

template class tqProfileToShapeIf<double>;
template class tqProfileToShapeIf<float>;

}  // namespace cadcam
