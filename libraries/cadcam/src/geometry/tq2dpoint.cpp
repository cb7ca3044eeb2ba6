// tq2dPoint: visiting, cloning and scaling; instantiated for float and double.
#include "cadcam/geometry/tq2dpoint.h"

#include "cadcam/geometry/tq2dgeometryconstvisitor.h"

namespace cadcam {

template <class T>
tq2dPoint<T>::~tq2dPoint() = default;

template <class T>
void tq2dPoint<T>::AcceptVisitor(tq2dGeometryConstVisitor<T>& visitor) const {
    visitor.Visit(*this);
}

template <class T>
misc::tqAutoPointer<tq2dGeometry<T>> tq2dPoint<T>::Clone() const {
    return misc::tqAutoPointer<tq2dGeometry<T>>(new tq2dPoint(*this));
}

template <class T>
void tq2dPoint<T>::Scale(const T& factor) {
    tq2dGeometry<T>::CheckScaleFactor(factor);
    m_point *= factor;
}

template class tq2dPoint<double>;
template class tq2dPoint<float>;

}  // namespace cadcam
