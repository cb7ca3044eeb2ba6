// tq2dLine: visiting, cloning and scaling; instantiated for float and double.
#include "cadcam/geometry/tq2dline.h"

#include "cadcam/geometry/tq2dgeometryconstvisitor.h"

namespace cadcam {

template <class T>
tq2dLine<T>::~tq2dLine() = default;

template <class T>
void tq2dLine<T>::AcceptVisitor(tq2dGeometryConstVisitor<T>& visitor) const {
    visitor.Visit(*this);
}

template <class T>
misc::tqAutoPointer<tq2dGeometry<T>> tq2dLine<T>::Clone() const {
    return misc::tqAutoPointer<tq2dGeometry<T>>(new tq2dLine(*this));
}

template <class T>
void tq2dLine<T>::Scale(const T& factor) {
    tq2dGeometry<T>::CheckScaleFactor(factor);
    m_start *= factor;
    m_end *= factor;
}

template class tq2dLine<double>;
template class tq2dLine<float>;

}  // namespace cadcam
