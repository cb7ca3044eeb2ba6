// tq2dArc: the signed sweep, the two constructors and their tolerance, angles on the arc and scaling.
#include "cadcam/geometry/tq2darc.h"

#include <cmath>
#include <limits>

#include "support/tqtest.h"

using cadcam::tqArcDirection;
using Arc = cadcam::tq2dArc<double>;
using P = cadcam::tqTPoint2d<double>;

namespace {

const char* const kDistance = "Provided start/end points to Arc constructor are in different distance from center.";
const char* const kSameDirection =
    "Arc start and end points lie in the same direction from center; a full circle is not an arc.";

}  // namespace

TEST(Tq2dArc, SweepIsSignedAngleFromStartToEnd) {
    // Quarter of the unit circle from (1,0) to (0,1): +90 one way, -270 the other.
    const Arc ccw(P(1, 0), P(0, 1), P(0, 0), tqArcDirection::Counterclockwise);
    const Arc cw(P(1, 0), P(0, 1), P(0, 0), tqArcDirection::Clockwise);
    EXPECT_EQ(ccw.GetSweep(), 90.0);
    EXPECT_EQ(cw.GetSweep(), -270.0);
    EXPECT_TRUE(ccw.IsCounterclockwise());
    EXPECT_EQ(cw.GetDirection(), tqArcDirection::Clockwise);
    // A sphere mill's head: S(0,0) A+(R,R; 0,R) is exactly 90 degrees.
    const Arc head(P(0, 0), P(3, 3), P(0, 3), tqArcDirection::Counterclockwise);
    EXPECT_EQ(head.GetSweep(), 90.0);
    EXPECT_EQ(head.GetRadius(), 3.0);
    EXPECT_EQ(head.GetStartAngle(), -90.0);
    EXPECT_EQ(head.GetEndAngle(), 0.0);
    // Half circles either way.
    EXPECT_EQ(Arc(P(1, 0), P(-1, 0), P(0, 0), tqArcDirection::Counterclockwise).GetSweep(), 180.0);
    EXPECT_EQ(Arc(P(1, 0), P(-1, 0), P(0, 0), tqArcDirection::Clockwise).GetSweep(), -180.0);
}

TEST(Tq2dArc, FromCentreRadiusAndAnglesKeepsTheSweepAsGiven) {
    const Arc arc(P(1, 1), 2, 90, -90);
    EXPECT_EQ(arc.GetStart(), P(1, 3));
    EXPECT_EQ(arc.GetEnd(), P(3, 1));
    EXPECT_EQ(arc.GetSweep(), -90.0);
    EXPECT_EQ(arc.GetStartAngle(), 90.0);
    EXPECT_EQ(arc.GetMidAngle(), 45.0);
    EXPECT_DOUBLE_EQ(arc.Length(), M_PI);
    EXPECT_EQ(Arc(P(0, 0), 1, 180, 359.5).GetSweep(), 359.5);
    EXPECT_THROW_MSG(Arc(P(0, 0), 1, 0, 0), misc::tqException,
                     "Arc sweep must be nonzero and less than 360 degrees in magnitude.");
    EXPECT_THROW_MSG(Arc(P(0, 0), 1, 0, -360), misc::tqException,
                     "Arc sweep must be nonzero and less than 360 degrees in magnitude.");
    EXPECT_THROW_MSG(Arc(P(0, 0), 0, 0, 90), misc::tqException, "Arc radius must be positive and finite.");
    EXPECT_THROW_MSG(Arc(P(0, std::nan("")), 1, 0, 90), misc::tqException,
                     "Arc center and start angle must be finite.");
}

TEST(Tq2dArc, EndMayLieOffTheCircleByEpsilonOnly) {
    // S = 1000 gives ε = 1e-6; the radius is the start's distance and the end keeps its coordinates.
    const P centre(0, 0);
    const P start(1000, 0);
    const P nearEnd(0, 1000 + 0.9e-6);
    const Arc arc(start, nearEnd, centre, tqArcDirection::Counterclockwise);
    EXPECT_EQ(arc.GetRadius(), 1000.0);
    EXPECT_EQ(arc.GetEnd(), nearEnd);
    EXPECT_EQ(Arc::Tolerance(1000), 1e-9 * 1000);
    EXPECT_EQ(Arc::Tolerance(0.5), 1e-9);  // never below 1e-9
    EXPECT_THROW_MSG(Arc(start, P(0, 1000 + 1.2e-6), centre, tqArcDirection::Counterclockwise), misc::tqException,
                     kDistance);
    // Below S = 1 the tolerance stays 1e-9.
    EXPECT_NO_THROW(Arc(P(0.5, 0), P(0, 0.5 + 0.9e-9), centre, tqArcDirection::Clockwise));
    EXPECT_THROW_MSG(Arc(P(0.5, 0), P(0, 0.5 + 2e-9), centre, tqArcDirection::Clockwise), misc::tqException,
                     kDistance);
    // A NaN anywhere fails the distance check.
    EXPECT_THROW_MSG(Arc(start, P(0, std::nan("")), centre, tqArcDirection::Clockwise), misc::tqException,
                     kDistance);
}

TEST(Tq2dArc, NoArcWithoutRadiusOrTurn) {
    EXPECT_THROW_MSG(Arc(P(1, 0), P(1, 0), P(0, 0), tqArcDirection::Counterclockwise), misc::tqException,
                     kSameDirection);
    EXPECT_THROW_MSG(Arc(P(1, 0), P(1, 1e-20), P(0, 0), tqArcDirection::Clockwise), misc::tqException,
                     kSameDirection);  // rounds to a full turn
    EXPECT_THROW_MSG(Arc(P(0, 0), P(0, 0), P(0, 0), tqArcDirection::Clockwise), misc::tqException,
                     "Arc radius must be positive and finite.");
}

TEST(Tq2dArc, AnglesAndPointsOnTheArc) {
    const Arc ccw(P(0, 0), 2, 350, 40);  // from -10 to 30 across the x axis
    EXPECT_NEAR(ccw.GetStartAngle(), -10.0, 1e-12);
    EXPECT_TRUE(ccw.ContainsAngle(0));
    EXPECT_TRUE(ccw.ContainsAngle(360));
    EXPECT_TRUE(ccw.ContainsAngle(-350));
    EXPECT_TRUE(ccw.ContainsAngle(29));
    EXPECT_FALSE(ccw.ContainsAngle(31));
    EXPECT_FALSE(ccw.ContainsAngle(180));
    EXPECT_FALSE(ccw.ContainsAngle(std::nan("")));
    const Arc cw(P(0, 0), 1, 90, -90);  // from 90 down to 0 through 45
    EXPECT_TRUE(cw.ContainsAngle(45));
    EXPECT_TRUE(cw.ContainsAngle(90));
    EXPECT_TRUE(cw.ContainsAngle(0));
    EXPECT_FALSE(cw.ContainsAngle(135));
    EXPECT_FALSE(cw.ContainsAngle(-45));
    EXPECT_EQ(cw.PointAtAngle(180), P(-1, 0));
    EXPECT_EQ(cw.PointAtAngle(-90), P(0, -1));
    const P p = cw.PointAtAngle(60);
    EXPECT_DOUBLE_EQ(p.x, 0.5);
    EXPECT_DOUBLE_EQ(p.y, std::sqrt(3.0) / 2);
}

TEST(Tq2dArc, ScaleMultipliesLengthsAndKeepsTheSweep) {
    Arc arc(P(1, 0), P(0, 1), P(0, 0), tqArcDirection::Clockwise);
    arc.Scale(25.4);
    EXPECT_EQ(arc.GetStart(), P(25.4, 0));
    EXPECT_EQ(arc.GetEnd(), P(0, 25.4));
    EXPECT_EQ(arc.GetRadius(), 25.4);
    EXPECT_EQ(arc.GetSweep(), -270.0);
    EXPECT_THROW_MSG(arc.Scale(0), misc::tqRangeException<double>, "Scale factor must be positive and finite");
    EXPECT_EQ(arc.GetRadius(), 25.4);
}

TEST(Tq2dArc, ComparesExactlyAndWorksInFloat) {
    const Arc a(P(0, 0), 1, 0, 90);
    Arc b = a;
    EXPECT_EQ(a, b);
    EXPECT_NE(a, Arc(P(0, 0), 1, 0, -270));  // same points, other way round
    b.Scale(std::nextafter(1.0, 2.0));
    EXPECT_NE(a, b);
    const cadcam::tq2dArc<float> f(cadcam::tqTPoint2d<float>(0, 0), cadcam::tqTPoint2d<float>(-2, 0),
                                   cadcam::tqTPoint2d<float>(-1, 0), tqArcDirection::Clockwise);
    EXPECT_EQ(f.GetSweep(), -180.0f);
    EXPECT_EQ(f.GetRadius(), 1.0f);
}
