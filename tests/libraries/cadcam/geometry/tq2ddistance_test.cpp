// tq2dDistance: crossings give 0, endpoints and the interior pairs along a normal or the line of centres.
#include "cadcam/geometry/tq2ddistance.h"

#include <cmath>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/geometry/tq2dpoint.h"
#include "support/tqtest.h"

using namespace cadcam;
using D = tq2dDistance<double>;
using Line = tq2dLine<double>;
using Arc = tq2dArc<double>;
using P = tqTPoint2d<double>;

TEST(Tq2dDistance, FromAPoint) {
    EXPECT_EQ(D::PointToSegment(P(1, 2), P(0, 0), P(4, 0)), 2.0);
    EXPECT_EQ(D::PointToSegment(P(7, 4), P(0, 0), P(4, 0)), 5.0);  // beyond the end
    EXPECT_EQ(D::PointToSegment(P(3, 4), P(0, 0), P(0, 0)), 5.0);  // a zero-length segment
    const Arc upper(P(0, 0), 2, 0, 180);
    EXPECT_EQ(D::PointToArc(P(0, 5), upper), 3.0);
    EXPECT_EQ(D::PointToArc(P(0, 0), upper), 2.0);  // the centre
    EXPECT_EQ(D::PointToArc(P(0, -1), upper), std::sqrt(5.0));  // outside the sweep: the nearer end
    EXPECT_EQ(D::PointToItem(P(0, 1), upper), 1.0);
}

TEST(Tq2dDistance, BetweenLinesAndArcs) {
    EXPECT_EQ(D::Between(Line(P(0, 0), P(4, 4)), Line(P(0, 4), P(4, 0))), 0.0);
    EXPECT_EQ(D::Between(Line(P(0, 0), P(4, 0)), Line(P(1, 3), P(9, 3))), 3.0);
    EXPECT_EQ(D::Between(Line(P(0, 0), P(4, 0)), Line(P(6, 1), P(6, 9))), std::sqrt(5.0));
    // The lower half circle about (2,3), radius 1, comes nearest to y = 0 at its middle, not at an end.
    const Arc lower(P(2, 3), 1, 180, 180);
    EXPECT_EQ(D::Between(Line(P(0, 0), P(4, 0)), lower), 2.0);
    EXPECT_EQ(D::Between(lower, Line(P(0, 0), P(4, 0))), 2.0);
    // The upper half only reaches that point through its ends.
    EXPECT_EQ(D::Between(Line(P(0, 0), P(4, 0)), Arc(P(2, 3), 1, 0, 180)), 3.0);
    EXPECT_EQ(D::Between(Line(P(0, 2.5), P(4, 2.5)), lower), 0.0);  // crossing
    // Arcs: nearest along the line of centres, 0 when crossing, ends for concentric ones.
    EXPECT_EQ(D::Between(Arc(P(0, 0), 1, -90, 180), Arc(P(5, 0), 1, 90, 180)), 3.0);
    EXPECT_EQ(D::Between(Arc(P(0, 0), 1, 90, 180), Arc(P(5, 0), 1, -90, 180)), 5.0);
    EXPECT_EQ(D::Between(Arc(P(0, 0), 2, -90, 180), Arc(P(3, 0), 2, 90, 180)), 0.0);
    EXPECT_DOUBLE_EQ(D::Between(Arc(P(0, 0), 1, 0, 90), Arc(P(0, 0), 3, 45, 90)), 2.0);
    EXPECT_DOUBLE_EQ(D::Between(Arc(P(0, 0), 1, 0, 90), Arc(P(0, 0), 3, 180, 90)), std::sqrt(10.0));
    // Through the item overload; other kinds are refused.
    const tq2dGeometry<double>& item = lower;
    EXPECT_EQ(D::Between(item, Line(P(0, 0), P(4, 0))), 2.0);
    EXPECT_THROW_MSG(D::Between(item, tq2dPoint<double>(P(0, 0))), misc::tqException,
                     "Distance is defined between lines and arcs only.");
}
