// tq2dGeometry: equality across kinds by double dispatch, and the scale factor check.
#include "cadcam/geometry/tq2dgeometry.h"

#include <cmath>
#include <limits>
#include <typeinfo>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dcontour.h"
#include "cadcam/geometry/tq2dgeometryconstvisitor.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/geometry/tq2dpoint.h"
#include "cadcam/geometry/tq2dpolyline.h"
#include "misc/tqexception.h"

namespace cadcam {

namespace {

/// Visits the left item and compares it with the right one, which must be of the very same class.
template <class T>
class EqualityVisitor final : public tq2dGeometryConstVisitor<T> {
public:
    explicit EqualityVisitor(const tq2dGeometry<T>& right) : m_right(right) {}
    void Visit(const tq2dLine<T>& left) override { Compare(left); }
    void Visit(const tq2dArc<T>& left) override { Compare(left); }
    void Visit(const tq2dContour<T>& left) override { Compare(left); }
    void Visit(const tq2dPoint<T>& left) override { Compare(left); }
    void Visit(const tq2dPolyLine<T>& left) override { Compare(left); }
    bool IsEqual() const { return m_equal; }

private:
    template <class K>
    void Compare(const K& left) {
        m_equal = typeid(left) == typeid(m_right) && left == static_cast<const K&>(m_right);
    }

    const tq2dGeometry<T>& m_right;
    bool m_equal = false;
};

}  // namespace

template <class T>
tq2dGeometry<T>::~tq2dGeometry() = default;

template <class T>
bool tq2dGeometry<T>::IsEqual(const tq2dGeometry& other) const {
    EqualityVisitor<T> visitor(other);
    AcceptVisitor(visitor);
    return visitor.IsEqual();
}

template <class T>
void tq2dGeometry<T>::CheckScaleFactor(const T& factor) {
    if (!(factor > 0) || !std::isfinite(factor))
        throw misc::tqRangeException<T>(u"Scale factor must be positive and finite", factor,
                                        std::numeric_limits<T>::min(), std::numeric_limits<T>::max());
}

template class tq2dGeometry<double>;
template class tq2dGeometry<float>;

}  // namespace cadcam
