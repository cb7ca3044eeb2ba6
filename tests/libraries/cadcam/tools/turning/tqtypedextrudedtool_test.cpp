// tqTypedExtrudedTool: the insert each turning class builds as its cutting part, and its rebuild on a change of units.
#include "cadcam/tools/tqtypedextrudedtool.h"

#include <cmath>
#include <vector>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dcontourproperties.h"
#include "cadcam/tools/solids/tqcontourturningsoliddefinition.h"
#include "cadcam/tools/turning/tqcontourturningtool.h"
#include "cadcam/tools/turning/tqdiamondturningtool.h"
#include "cadcam/tools/turning/tqgrooveturningtool.h"
#include "cadcam/tools/turning/tqroundturningtool.h"
#include "cadcam/tools/turning/tqtriangleturningtool.h"
#include "tools/shape/profiletoolkit.h"
#include "turningtestsupport.h"

namespace turningtest {
namespace {

using cadcam::tqPoint2d;
using Contour = cadcam::tq2dContour<double>;
using Groove = cadcam::tqGrooveTurningTool;
using cadcam::shape::CosDegrees;
using cadcam::shape::SinDegrees;
constexpr double kTol = 1e-12;

/// The insert's one contour: the solid lies in the turning plane, over the insert's thickness.
Contour InsertContour(const cadcam::tqTypedExtrudedTool& tool) {
    return tqtest::TurningPlaneContour(*tool.GetCuttingPart(), 0, tool.GetInsertThickness());
}

void ExpectPoint(const tqPoint2d& actual, const tqPoint2d& expected, const char* what) {
    EXPECT_NEAR(actual.x, expected.x, kTol) << what;
    EXPECT_NEAR(actual.y, expected.y, kTol) << what;
}

/// Item index is an arc of the given centre, radius and sweep.
void ExpectArc(const Contour& contour, std::size_t index, const tqPoint2d& centre, double r, double sweep) {
    const auto* arc = dynamic_cast<const cadcam::tq2dArc<double>*>(contour.GetItem(index).Get());
    ASSERT_NE(arc, nullptr) << "item " << index;
    ExpectPoint(arc->GetCentre(), centre, "centre");
    EXPECT_NEAR(arc->GetRadius(), r, kTol) << "item " << index;
    EXPECT_NEAR(arc->GetSweep(), sweep, 1e-9) << "item " << index;
}

/// The item ends in order, given as x, y pairs.
void ExpectEnds(const Contour& contour, const std::vector<double>& xy) {
    ASSERT_EQ(contour.GetCount() * 2, xy.size());
    const cadcam::tq2dContourProperties<double> items(contour);
    for (std::size_t i = 0; i < contour.GetCount(); ++i)
        ExpectPoint(items.GetEnd(i), {xy[2 * i], xy[2 * i + 1]}, "end");
}

/// The working corner of the given angle: an arc about (0, r), symmetric about the Z axis, whose lowest point is
/// the origin.
void ExpectWorkingCorner(const Contour& contour, double r, double cornerAngle) {
    ExpectArc(contour, 0, {0, r}, r, 180 - cornerAngle);
    const cadcam::tq2dContourProperties<double> items(contour);
    const double c = r * CosDegrees(cornerAngle / 2), s = r - r * SinDegrees(cornerAngle / 2);
    ExpectPoint(items.GetStart(0), {-c, s}, "corner start");
    ExpectPoint(items.GetEnd(0), {c, s}, "corner end");
}

TEST(InsertContour, TriangleHasThreeRoundedCorners) {
    const double r = 0.8, side = 12.7 * std::sqrt(3.0), t = r * std::sqrt(3.0);
    const Contour contour = InsertContour(cadcam::tqTriangleTurningTool(kMetric, Arbor(), Holder(), 4.76, r, 12.7));
    ASSERT_EQ(contour.GetCount(), 6u);
    ExpectWorkingCorner(contour, r, 60);
    // The sharp working corner lies 2r below the arc centre; the next one a side further up the 60° edge.
    const tqPoint2d up(CosDegrees(60), SinDegrees(60)), v0(0, -r), v1 = v0 + up * side,
                                                                   v2 = v0 + tqPoint2d(-up.x, up.y) * side;
    ExpectPoint(cadcam::tq2dContourProperties<double>(contour).GetEnd(1), v1 - up * t, "line to corner 1");
    ExpectArc(contour, 2, v1 + tqPoint2d(-CosDegrees(30), -SinDegrees(30)) * (2 * r), r, 120);
    ExpectArc(contour, 4, v2 + tqPoint2d(CosDegrees(30), -SinDegrees(30)) * (2 * r), r, 120);
}

TEST(InsertContour, DiamondHasItsAcuteCornersOnTheAxis) {
    const double r = 0.4, angle = 55, hv = 6.35 / SinDegrees(27.5), below = r / SinDegrees(27.5);
    const Contour contour =
        InsertContour(cadcam::tqDiamondTurningTool(kMetric, Arbor(), Holder(1), 4.76, r, 12.7, angle));
    ASSERT_EQ(contour.GetCount(), 8u);
    ExpectWorkingCorner(contour, r, angle);
    const double sharpY = r - below, side = 6.35 / CosDegrees(27.5) - r / SinDegrees(62.5);
    ExpectArc(contour, 2, {side, sharpY + hv}, r, angle);
    ExpectArc(contour, 4, {0, sharpY + 2 * hv - below}, r, 180 - angle);
    ExpectArc(contour, 6, {-side, sharpY + hv}, r, angle);
}

TEST(InsertContour, RoundIsFourQuarterArcsFromTheOrigin) {
    const Contour contour = InsertContour(cadcam::tqRoundTurningTool(kMetric, Arbor(), Holder(6), 4.76, 12.7));
    ExpectEnds(contour, {6.35, 6.35, 0, 12.7, -6.35, 6.35, 0, 0});
    for (std::size_t i = 0; i < 4; ++i) ExpectArc(contour, i, {0, 6.35}, 6.35, 90);
}

TEST(InsertContour, GrooveTypeAStandsOnItsCentredTipEdge) {
    const double h = 0.5 * cadcam::shape::TanDegrees(30);
    const Contour contour = InsertContour(Groove(kMetric, Arbor(), Holder(8), 4, Groove::TYPE_A, 0.2, 20, 3, 5, 4, 30));
    ExpectEnds(contour, {-1.3, 0, 1.3, 0, 1.5, 0.2, 1.5, 5, 2, 5 + h, 2, 20, -2, 20, -2, 5 + h, -1.5, 5, -1.5, 0.2});
    ExpectArc(contour, 0, {-1.3, 0.2}, 0.2, 90);
    ExpectArc(contour, 2, {1.3, 0.2}, 0.2, 90);
}

TEST(InsertContour, GrooveTypeEHasItsVTipOnTheOrigin) {
    const double r = 0.2, e = 40, hv = 1.5 / cadcam::shape::TanDegrees(e);
    const Contour contour = InsertContour(Groove(kMetric, Arbor(), Holder(8), 4, Groove::TYPE_E, r, 20, 3, 5, 4, e));
    ASSERT_EQ(contour.GetCount(), 10u);
    ExpectWorkingCorner(contour, r, 2 * e);
    // Everything moves down by the distance from the sharp tip to the arc's lowest point.
    const double up = r - r / SinDegrees(e);
    const tqPoint2d corner(r * CosDegrees(e), r - r * SinDegrees(e));
    ExpectEnds(contour, {corner.x, corner.y, 1.5, hv + up, 1.5,  5 + up, 2,    5 + up,  2,         20 + up,
                         -2,       20 + up,  -2,  5 + up,  -1.5, 5 + up, -1.5, hv + up, -corner.x, corner.y});
}

TEST(InsertContour, GrooveTypeDIsAHalfCircleTip) {
    const Contour contour = InsertContour(Groove(kMetric, Arbor(), Holder(8), 4, Groove::TYPE_D, 1.5, 20, 3, 5, 4, 30));
    ExpectArc(contour, 0, {0, 1.5}, 1.5, 90);
    ExpectArc(contour, 1, {0, 1.5}, 1.5, 90);
    ExpectPoint(cadcam::tq2dContourProperties<double>(contour).GetEnd(0), {0, 0}, "tip");
}

TEST(InsertContour, ContourTurningRunsCounterclockwiseWhateverItWasGiven) {
    // A clockwise square with one arc corner.
    const Contour clockwise = Profile(0, 0).L(0, 10).L(10, 10).L(10, 2).A(8, 0, 8, 2, false).L(0, 0).Get();
    const cadcam::tqContourTurningSolidDefinition<double> solid(kMetric, 20, Turning::H_RIGHT, Turning::SK_RECTANGULAR,
                                                                clockwise);
    const Contour contour = InsertContour(cadcam::tqContourTurningTool(kMetric, Arbor(), Holder(1), 3, solid));
    ExpectEnds(contour, {8, 0, 10, 2, 10, 10, 0, 10, 0, 0});
    ExpectArc(contour, 1, {8, 2}, 2, 90);
}

TEST(InsertContour, AChangeOfUnitsRebuildsTheInsert) {
    // The base rebuilds the insert of every class: it is that of a tool built from the inch parameters.
    const Groove metric(kMetric, Arbor(), Holder(8), 4, Groove::TYPE_E, 0.2, 20, 3, 5, 4, 40);
    Groove inch(metric);
    inch.SetUnits(kInch);
    const Groove fresh(kInch, inch.GetArbor(), inch.GetHolder(), inch.GetInsertThickness(),
                       inch.GetGroovingTurningToolType(), inch.GetCornerRadius(), inch.GetA(), inch.GetB(), inch.GetC(),
                       inch.GetD(), inch.GetE());
    EXPECT_TRUE(inch.GetCuttingPart()->IsEqual(*fresh.GetCuttingPart()));
    EXPECT_EQ(inch.GetCuttingPart()->GetUnits(), kInch);
    EXPECT_FALSE(metric.GetCuttingPart()->IsEqual(*inch.GetCuttingPart()));
}

}  // namespace
}  // namespace turningtest
