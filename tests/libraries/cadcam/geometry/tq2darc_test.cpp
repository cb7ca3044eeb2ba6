// tq2dArc: the signed sweep, the two constructors and their tolerance, angles on the arc and scaling.
#include "cadcam/geometry/tq2darc.h"

#include <cmath>

#include "support/tqtest.h"

using Arc = cadcam::tq2dArc<double>;
using P = cadcam::tqTPoint2d<double>;

namespace {

const auto kCcw = cadcam::tqArcDirection::Counterclockwise;
const auto kCw = cadcam::tqArcDirection::Clockwise;
const char* const kDistance = "Provided start/end points to Arc constructor are in different distance from center.";
const char* const kRadius = "Arc radius must be positive and finite.";
const char* const kSweep = "Arc sweep must be nonzero and less than 360 degrees in magnitude.";

}  // namespace

TEST(Tq2dArc, SweepIsSignedAngleFromStartToEnd) {
    // A quarter of the unit circle is +90 one way and -270 the other; half circles are 180 either way.
    EXPECT_EQ(Arc(P(1, 0), P(0, 1), P(0, 0), kCcw).GetSweep(), 90.0);
    EXPECT_EQ(Arc(P(1, 0), P(0, 1), P(0, 0), kCw).GetSweep(), -270.0);
    EXPECT_EQ(Arc(P(1, 0), P(-1, 0), P(0, 0), kCcw).GetSweep(), 180.0);
    EXPECT_EQ(Arc(P(1, 0), P(-1, 0), P(0, 0), kCw).GetSweep(), -180.0);
    // A sphere mill's head: S(0,0) A+(R,R; 0,R) is exactly 90 degrees.
    const Arc head(P(0, 0), P(3, 3), P(0, 3), kCcw);
    EXPECT_TRUE(head.IsCounterclockwise());
    EXPECT_EQ(head.GetSweep(), 90.0);
    EXPECT_EQ(head.GetRadius(), 3.0);
    EXPECT_EQ(head.GetStartAngle(), -90.0);
    EXPECT_EQ(head.GetEndAngle(), 0.0);
    // Float works alike.
    const cadcam::tq2dArc<float> f({0, 0}, {-2, 0}, {-1, 0}, kCw);
    EXPECT_EQ(f.GetSweep(), -180.0f);
    EXPECT_EQ(f.GetRadius(), 1.0f);
}

TEST(Tq2dArc, FromCentreRadiusAndAnglesKeepsTheSweepAsGiven) {
    const Arc arc(P(1, 1), 2, 90, -90);
    EXPECT_EQ(arc.GetStart(), P(1, 3));
    EXPECT_EQ(arc.GetEnd(), P(3, 1));
    EXPECT_EQ(arc.GetSweep(), -90.0);
    EXPECT_EQ(arc.GetDirection(), kCw);
    EXPECT_EQ(arc.GetMidAngle(), 45.0);
    EXPECT_DOUBLE_EQ(arc.Length(), M_PI);
    EXPECT_EQ(Arc(P(0, 0), 1, 180, 359.5).GetSweep(), 359.5);
    EXPECT_THROW_MSG(Arc(P(0, 0), 1, 0, 0), misc::tqException, kSweep);
    EXPECT_THROW_MSG(Arc(P(0, 0), 1, 0, -360), misc::tqException, kSweep);
    EXPECT_THROW_MSG(Arc(P(0, 0), 0, 0, 90), misc::tqException, kRadius);
    EXPECT_THROW_MSG(Arc(P(0, std::nan("")), 1, 0, 90), misc::tqException,
                     "Arc center and start angle must be finite.");
}

TEST(Tq2dArc, EndMayLieOffTheCircleByTheToleranceOnly) {
    // S = 1000 gives 1e-6; the radius is the start's distance and the end keeps its coordinates.
    const Arc arc(P(1000, 0), P(0, 1000 + 0.9e-6), P(0, 0), kCcw);
    EXPECT_EQ(arc.GetRadius(), 1000.0);
    EXPECT_EQ(arc.GetEnd(), P(0, 1000 + 0.9e-6));
    EXPECT_EQ(Arc::Tolerance(1000), 1e-9 * 1000);
    EXPECT_EQ(Arc::Tolerance(0.5), 1e-9);  // never below 1e-9
    EXPECT_NO_THROW(Arc(P(0.5, 0), P(0, 0.5 + 0.9e-9), P(0, 0), kCw));
    const char* const kSameDirection =
        "Arc start and end points lie in the same direction from center; a full circle is not an arc.";
    const struct {
        P start, end;
        cadcam::tqArcDirection direction;
        const char* message;
    } cases[] = {{P(1000, 0), P(0, 1000 + 1.2e-6), kCcw, kDistance},
                 {P(0.5, 0), P(0, 0.5 + 2e-9), kCw, kDistance},
                 {P(1000, 0), P(0, std::nan("")), kCw, kDistance},  // a NaN anywhere fails the distance check
                 {P(1, 0), P(1, 0), kCcw, kSameDirection},
                 {P(1, 0), P(1, 1e-20), kCw, kSameDirection},  // rounds to a full turn
                 {P(0, 0), P(0, 0), kCw, kRadius}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.end.y);
        EXPECT_THROW_MSG(Arc(c.start, c.end, P(0, 0), c.direction), misc::tqException, c.message);
    }
}

TEST(Tq2dArc, AnglesAndPointsOnTheArc) {
    const Arc ccw(P(0, 0), 2, 350, 40);  // from -10 to 30 across the x axis
    EXPECT_NEAR(ccw.GetStartAngle(), -10.0, 1e-12);
    const Arc cw(P(0, 0), 1, 90, -90);  // from 90 down to 0 through 45
    for (const double in : {0.0, 360.0, -350.0, 29.0}) EXPECT_TRUE(ccw.ContainsAngle(in)) << in;
    for (const double out : {31.0, 180.0, std::nan("")}) EXPECT_FALSE(ccw.ContainsAngle(out)) << out;
    for (const double in : {45.0, 90.0, 0.0}) EXPECT_TRUE(cw.ContainsAngle(in)) << in;
    for (const double out : {135.0, -45.0}) EXPECT_FALSE(cw.ContainsAngle(out)) << out;
    EXPECT_EQ(cw.PointAtAngle(180), P(-1, 0));
    EXPECT_EQ(cw.PointAtAngle(-90), P(0, -1));
    EXPECT_DOUBLE_EQ(cw.PointAtAngle(60).x, 0.5);
    EXPECT_DOUBLE_EQ(cw.PointAtAngle(60).y, std::sqrt(3.0) / 2);
}

TEST(Tq2dArc, ScaleMultipliesLengthsAndKeepsTheSweep) {
    Arc arc(P(1, 0), P(0, 1), P(0, 0), kCw);
    const Arc before = arc;
    arc.Scale(25.4);
    EXPECT_EQ(arc.GetStart(), P(25.4, 0));
    EXPECT_EQ(arc.GetEnd(), P(0, 25.4));
    EXPECT_EQ(arc.GetRadius(), 25.4);
    EXPECT_EQ(arc.GetSweep(), -270.0);
    EXPECT_THROW_MSG(arc.Scale(0), misc::tqRangeException<double>, "Scale factor must be positive and finite");
    EXPECT_EQ(arc.GetRadius(), 25.4);
    // Comparison is exact, and the way round counts.
    EXPECT_EQ(before, Arc(P(1, 0), P(0, 1), P(0, 0), kCw));
    EXPECT_NE(before, Arc(P(1, 0), P(0, 1), P(0, 0), kCcw));
    arc = before;
    arc.Scale(std::nextafter(1.0, 2.0));
    EXPECT_NE(arc, before);
}
