// tq2dGeometryConstVisitor: comparison through the base dispatches on the left item's kind, so each kind must reach
// its own slot: a slot that dispatched wrongly would make an item unequal to its clone.
#include "cadcam/geometry/tq2dgeometryconstvisitor.h"

#include <cmath>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dcontour.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/geometry/tq2dpoint.h"
#include "cadcam/geometry/tq2dpolyline.h"
#include "support/tqtest.h"

using namespace cadcam;

namespace {

template <class T>
void ExpectEachKindEqualsItsCloneOnly() {
    using P = tqTPoint2d<T>;
    using Item = misc::tqAutoPointer<tq2dGeometry<T>>;
    const Item items[] = {Item(new tq2dLine<T>(P(0, 0), P(1, 0))), Item(new tq2dArc<T>(P(0, 0), 1, 0, 90)),
                          Item(new tq2dContour<T>()), Item(new tq2dPoint<T>(P(1, 2))),
                          Item(new tq2dPolyLine<T>({P(0, 0), P(1, 1)}))};
    static_assert(sizeof items / sizeof items[0] == tq2dGeometryTypes<T>::size, "one item of each kind");
    for (std::size_t j = 0; j < tq2dGeometryTypes<T>::size; ++j) {
        const Item clone = items[j]->Clone();
        EXPECT_NE(clone.Get(), items[j].Get());
        for (std::size_t i = 0; i < tq2dGeometryTypes<T>::size; ++i)
            EXPECT_EQ(*items[i] == *clone, i == j) << i << " vs " << j;
    }
}

}  // namespace

TEST(Tq2dGeometryConstVisitor, BaseComparisonNeedsTheSameKind) {
    ExpectEachKindEqualsItsCloneOnly<double>();
    ExpectEachKindEqualsItsCloneOnly<float>();
    // A NaN makes an item unequal even to itself.
    const tq2dPoint<double> nan(tqTPoint2d<double>(std::nan(""), 0));
    EXPECT_FALSE(static_cast<const tq2dGeometry<double>&>(nan) == nan);
}
