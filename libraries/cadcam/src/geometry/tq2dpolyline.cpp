// tq2dPolyLine: visiting, cloning and scaling; instantiated for float and double.
#include "cadcam/geometry/tq2dpolyline.h"

#include "cadcam/geometry/tq2dgeometryconstvisitor.h"

namespace cadcam {

template <class T>
tq2dPolyLine<T>::~tq2dPolyLine() = default;

template <class T>
void tq2dPolyLine<T>::AcceptVisitor(tq2dGeometryConstVisitor<T>& visitor) const {
    visitor.Visit(*this);
}

template <class T>
misc::tqAutoPointer<tq2dGeometry<T>> tq2dPolyLine<T>::Clone() const {
    return misc::tqAutoPointer<tq2dGeometry<T>>(new tq2dPolyLine(*this));
}

template <class T>
void tq2dPolyLine<T>::Scale(const T& factor) {
    tq2dGeometry<T>::CheckScaleFactor(factor);
    for (tqTPoint2d<T>& point : m_points) point *= factor;
}

template class tq2dPolyLine<double>;
template class tq2dPolyLine<float>;

}  // namespace cadcam
