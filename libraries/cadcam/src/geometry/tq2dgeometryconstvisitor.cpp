// tq2dGeometryConstVisitor: instantiated for float and double.
#include "cadcam/geometry/tq2dgeometryconstvisitor.h"

namespace cadcam {

template <class T>
tq2dGeometryConstVisitor<T>::~tq2dGeometryConstVisitor() = default;

template class tq2dGeometryConstVisitor<double>;
template class tq2dGeometryConstVisitor<float>;

}  // namespace cadcam
