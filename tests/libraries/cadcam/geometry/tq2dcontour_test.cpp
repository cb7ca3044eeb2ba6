// tq2dContour: shared items, iteration and its bad dereference, deep Clone, scaling once per item, equality.
#include "cadcam/geometry/tq2dcontour.h"

#include <cstdint>
#include <vector>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/geometry/tq2dpoint.h"
#include "support/tqtest.h"

using Contour = cadcam::tq2dContour<double>;
using Geometry = cadcam::tq2dGeometry<double>;
using Line = cadcam::tq2dLine<double>;
using Arc = cadcam::tq2dArc<double>;
using P = cadcam::tqTPoint2d<double>;
using Item = misc::tqAutoPointer<Geometry>;

namespace {

/// An end mill's bottom, a quarter arc and its side: S(0,0) L(2,0) A+(3,1; 2,1) L(3,5).
Contour Profile() {
    Contour c;
    c.Append(Item(new Line(P(0, 0), P(2, 0))));
    c.Append(Item(new Arc(P(2, 0), P(3, 1), P(2, 1), cadcam::tqArcDirection::Counterclockwise)));
    c.Append(Item(new Line(P(3, 1), P(3, 5))));
    return c;
}

}  // namespace

TEST(Tq2dContour, IteratesInOrderAndRefusesBadDereference) {
    const Contour c = Profile(), empty;
    std::vector<const Geometry*> seen;
    for (const Item& item : c) seen.push_back(item.Get());
    EXPECT_EQ(seen, (std::vector<const Geometry*>{c.GetItem(0).Get(), c.GetItem(1).Get(), c.GetItem(2).Get()}));
    auto it = c.end();
    EXPECT_EQ((--it)->Get(), seen[2]);
    --it, --it, --it;  // before the first item
    EXPECT_EQ(empty.begin(), empty.end());
    for (const auto& bad : {c.end(), Contour::ConstIterator(), empty.begin(), it})
        EXPECT_THROW_MSG(*bad, misc::tqException, "Dereference of bad pointer");
}

TEST(Tq2dContour, EditingChecksIndicesAndNulls) {
    Contour c = Profile();
    EXPECT_THROW_MSG(c.Append(Item()), misc::tqException, "Accessing TQ_NULL pointer");
    EXPECT_THROW_MSG(c.Insert(0, Item()), misc::tqException, "Accessing TQ_NULL pointer");
    EXPECT_THROW_MSG(c.GetItem(3), misc::tqIdxRangeException<std::uint64_t>, "Contour index out of range");
    EXPECT_THROW_MSG(c.Insert(4, Item(new Line)), misc::tqIdxRangeException<std::uint64_t>,
                     "Contour index out of range");
    EXPECT_EQ(c.GetCount(), 3u);
    const Item first = c.GetItem(0);
    c.Erase(0);
    c.Insert(2, first);
    EXPECT_EQ(c.GetItem(2).Get(), first.Get());
    EXPECT_NE(c, Profile());  // items compare in order
    c.Clear();
    EXPECT_TRUE(c.IsEmpty());
}

TEST(Tq2dContour, CopySharesItemsCloneCopiesThemAndScaleTouchesEachOnce) {
    Contour original = Profile();
    const Contour copy = original;
    const Item clone = original.Clone();
    const auto& cloned = dynamic_cast<const Contour&>(*clone);
    EXPECT_EQ(copy.GetItem(1).Get(), original.GetItem(1).Get());
    EXPECT_NE(cloned.GetItem(1).Get(), original.GetItem(1).Get());
    EXPECT_EQ(cloned, original);
    original.GetItem(0)->Scale(2);
    EXPECT_EQ(copy, original);
    EXPECT_NE(cloned, original);
    Contour twice;
    const Item line(new Line(P(1, 1), P(2, 2)));
    twice.Append(line);
    twice.Append(line);
    twice.Scale(10);
    EXPECT_EQ(dynamic_cast<const Line&>(*line).GetEnd(), P(20, 20));
}

TEST(Tq2dContour, ContoursNestAndCompareThroughTheirItems) {
    Contour outer1, outer2;
    outer1.Append(Item(new Contour(Profile())));
    outer2.Append(Item(new Contour(Profile())));
    EXPECT_EQ(outer1, outer2);
    EXPECT_NE(outer1, Contour());
    outer2.Append(Item(new cadcam::tq2dPoint<double>(P(1, 1))));
    EXPECT_NE(outer1, outer2);
}
