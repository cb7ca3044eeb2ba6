// tq2dGeometryConstVisitor: each kind reaches its own slot, and comparison through the base is by kind.
#include "cadcam/geometry/tq2dgeometryconstvisitor.h"

#include <cmath>
#include <string>
#include <vector>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dcontour.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/geometry/tq2dpoint.h"
#include "cadcam/geometry/tq2dpolyline.h"
#include "support/tqtest.h"

using namespace cadcam;

namespace {

template <class T>
class Recorder final : public tq2dGeometryConstVisitor<T> {
public:
    void Visit(const tq2dLine<T>&) override { m_slots.push_back("line"); }
    void Visit(const tq2dArc<T>&) override { m_slots.push_back("arc"); }
    void Visit(const tq2dContour<T>&) override { m_slots.push_back("contour"); }
    void Visit(const tq2dPoint<T>&) override { m_slots.push_back("point"); }
    void Visit(const tq2dPolyLine<T>&) override { m_slots.push_back("polyline"); }
    std::vector<std::string> m_slots;
};

/// One item of each kind, in the visitor's slot order.
template <class T>
std::vector<misc::tqAutoPointer<tq2dGeometry<T>>> OneOfEach() {
    using P = tqTPoint2d<T>;
    using Item = misc::tqAutoPointer<tq2dGeometry<T>>;
    return {Item(new tq2dLine<T>(P(0, 0), P(1, 0))), Item(new tq2dArc<T>(P(0, 0), 1, 0, 90)),
            Item(new tq2dContour<T>()), Item(new tq2dPoint<T>(P(1, 2))), Item(new tq2dPolyLine<T>({P(0, 0), P(1, 1)}))};
}

template <class T>
void ExpectEachKindInItsSlot() {
    const auto items = OneOfEach<T>();
    ASSERT_EQ(items.size(), tq2dGeometryTypes<T>::size);
    Recorder<T> recorder, outer;
    for (const auto& item : items) item->AcceptVisitor(recorder);
    EXPECT_EQ(recorder.m_slots, (std::vector<std::string>{"line", "arc", "contour", "point", "polyline"}));
    tq2dContour<T> contour;  // a contour's own slot is called, not its items'
    contour.Append(items[0]);
    contour.AcceptVisitor(outer);
    EXPECT_EQ(outer.m_slots, std::vector<std::string>{"contour"});
}

}  // namespace

TEST(Tq2dGeometryConstVisitor, DispatchesEachKind) {
    ExpectEachKindInItsSlot<double>();
    ExpectEachKindInItsSlot<float>();
}

TEST(Tq2dGeometryConstVisitor, BaseComparisonNeedsTheSameKind) {
    // Each item equals its clone, a distinct object, and no item of another kind.
    const auto items = OneOfEach<double>();
    for (std::size_t j = 0; j < items.size(); ++j) {
        const auto clone = items[j]->Clone();
        EXPECT_NE(clone.Get(), items[j].Get());
        for (std::size_t i = 0; i < items.size(); ++i) EXPECT_EQ(*items[i] == *clone, i == j) << i << " vs " << j;
    }
    // A NaN makes an item unequal even to itself.
    const tq2dPoint<double> nan(tqTPoint2d<double>(std::nan(""), 0));
    EXPECT_FALSE(static_cast<const tq2dGeometry<double>&>(nan) == nan);
}
