// tq2dIntersection: exact solutions within both extents, touches within the tolerance, overlaps, tangency.
#include "cadcam/geometry/tq2dintersection.h"

#include <cmath>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/geometry/tq2dpoint.h"
#include "support/tqtest.h"

using namespace cadcam;
using X = tq2dIntersection<double>;
using Line = tq2dLine<double>;
using Arc = tq2dArc<double>;
using P = tqTPoint2d<double>;

namespace {
const double kTol = 1e-9;
}  // namespace

TEST(Tq2dIntersection, LinesCrossTouchOrOverlap) {
    const X cross(Line(P(0, 0), P(4, 4)), Line(P(0, 4), P(4, 0)), kTol);
    EXPECT_EQ(cross.GetPoints(), std::vector<P>{P(2, 2)});
    EXPECT_TRUE(cross.LiesWithin(P(2, 2 + 0.5 * kTol), kTol));
    EXPECT_FALSE(cross.LiesWithin(P(2, 2 + 2 * kTol), kTol));
    // Missing by half the tolerance is a touch; by twice it is nothing.
    EXPECT_EQ(X(Line(P(0, 0), P(4, 0)), Line(P(2, 0.5 * kTol), P(2, 3)), kTol).GetPoints().size(), 1u);
    EXPECT_TRUE(X(Line(P(0, 0), P(4, 0)), Line(P(2, 2 * kTol), P(2, 3)), kTol).IsEmpty());
    // Collinear: a stretch in the first item's direction, or the one point where they abut.
    const X overlap(Line(P(5, 0), P(0, 0)), Line(P(1, 0), P(9, 0)), kTol);
    ASSERT_EQ(overlap.GetOverlaps().size(), 1u);
    EXPECT_EQ(overlap.GetOverlaps()[0].from, P(5, 0));
    EXPECT_EQ(overlap.GetOverlaps()[0].to, P(1, 0));
    EXPECT_FALSE(overlap.LiesWithin(P(1, 0), kTol));
    EXPECT_EQ(X(Line(P(0, 0), P(5, 0)), Line(P(5, 0), P(9, 0)), kTol).GetPoints(), std::vector<P>{P(5, 0)});
    EXPECT_TRUE(X(Line(P(0, 0), P(5, 0)), Line(P(6, 0), P(9, 0)), kTol).IsEmpty());
    EXPECT_TRUE(X(Line(P(0, 0), P(5, 0)), Line(P(0, 1), P(5, 1)), kTol).IsEmpty());
}

TEST(Tq2dIntersection, LineAndCircleRestrictedToTheArc) {
    EXPECT_EQ(X(Line(P(-5, 0), P(5, 0)), Arc(P(0, 0), 2, 0, 90), kTol).GetPoints(), std::vector<P>{P(2, 0)});
    EXPECT_EQ(X(Line(P(-5, 1), P(5, 1)), Arc(P(0, 0), 2, 0, 180), kTol).GetPoints().size(), 2u);
    EXPECT_TRUE(X(Line(P(-5, 1), P(5, 1)), Arc(P(0, 0), 2, 180, 180), kTol).IsEmpty());
    // A tangent, or a line within the tolerance of one, gives the contact alone.
    for (const double y : {2.0, 2 - 0.5 * kTol, 2 + 0.5 * kTol}) {
        const X touch(Arc(P(0, 0), 2, 0, 180), Line(P(-5, y), P(5, y)), kTol);
        ASSERT_EQ(touch.GetPoints().size(), 1u);
        EXPECT_EQ(touch.GetPoints()[0], P(0, y));
    }
    EXPECT_TRUE(X(Line(P(-5, 2 + 2 * kTol), P(5, 2 + 2 * kTol)), Arc(P(0, 0), 2, 0, 180), kTol).IsEmpty());
}

TEST(Tq2dIntersection, CirclesCrossTouchOrShareArcs) {
    const X two(Arc(P(0, 0), 2, -90, 180), Arc(P(2, 0), 2, 90, 180), kTol);
    ASSERT_EQ(two.GetPoints().size(), 2u);
    EXPECT_NEAR(two.GetPoints()[0].x, 1.0, 1e-15);
    EXPECT_NEAR(std::fabs(two.GetPoints()[0].y), std::sqrt(3.0), 1e-15);
    EXPECT_EQ(X(Arc(P(0, 0), 1, -90, 180), Arc(P(3, 0), 2, 90, 180), kTol).GetPoints(), std::vector<P>{P(1, 0)});
    // One circle: 0..300 clockwise and 270..390 share two stretches; quarter arcs end to end share a point.
    EXPECT_EQ(X(Arc(P(0, 0), 1, 300, -300), Arc(P(0, 0), 1, 270, 120), kTol).GetOverlaps().size(), 2u);
    EXPECT_EQ(X(Arc(P(0, 0), 1, 0, 90), Arc(P(0, 0), 1, 90, 90), kTol).GetPoints(), std::vector<P>{P(0, 1)});
    EXPECT_TRUE(X(Arc(P(0, 0), 1, 0, 90), Arc(P(0, 0), 2, 0, 90), kTol).IsEmpty());  // concentric
    EXPECT_THROW_MSG(X(Line(), tq2dPoint<double>(), kTol), misc::tqException,
                     "Intersection is defined between lines and arcs only.");
    EXPECT_THROW_MSG(X(Line(), Line(), -1), misc::tqRangeException<double>,
                     "Intersection tolerance must be finite and not negative");
}
