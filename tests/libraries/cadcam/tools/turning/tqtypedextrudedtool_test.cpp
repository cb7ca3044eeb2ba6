// tqTypedExtrudedTool: the insert each turning class builds as its cutting part, and its rebuild on a change of units.
#include "cadcam/tools/tqtypedextrudedtool.h"

#include <cmath>
#include <stdexcept>
#include <vector>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dcontourproperties.h"
#include "cadcam/geometry/tqangle.h"
#include "cadcam/tools/parts/tqcuttingpartdefinition.h"
#include "cadcam/tools/solids/tqcontourturningsoliddefinition.h"
#include "cadcam/tools/solids/tqextrudedsoliddefinition.h"
#include "cadcam/tools/turning/tqcontourturningtool.h"
#include "cadcam/tools/turning/tqdiamondturningtool.h"
#include "cadcam/tools/turning/tqgrooveturningtool.h"
#include "cadcam/tools/turning/tqroundturningtool.h"
#include "cadcam/tools/turning/tqtriangleturningtool.h"
#include "turningtestsupport.h"

namespace turningtest {
namespace {

using cadcam::tqPoint2d;
using Contour = cadcam::tq2dContour<double>;
using Groove = cadcam::tqGrooveTurningTool;
constexpr double kTol = 1e-12;

double Sin(double degrees) { return std::sin(degrees * cadcam::tqPi<double> / 180); }
double Cos(double degrees) { return std::cos(degrees * cadcam::tqPi<double> / 180); }

/// The insert's one contour, after checking that the solid stands in the turning plane with the insert's
/// thickness and that the contour is closed, simple and counterclockwise.
Contour InsertContour(const cadcam::tqTypedExtrudedTool& tool) {
    const auto solid = tool.GetCuttingPart()->GetSolid().DynamicCast<cadcam::tqExtrudedSolidDefinition<double>>();
    if (solid.IsNull() || solid->GetContours().size() != 1) throw std::logic_error("not a one-contour extrusion");
    EXPECT_EQ(solid->GetConstructionPlane(), cadcam::tqTPoint3d<double>(0, -1, 0));
    EXPECT_EQ(solid->GetPlaneZ(), 0.0);
    EXPECT_EQ(solid->GetExtrusionVector(), cadcam::tqTPoint3d<double>(0, -tool.GetInsertThickness(), 0));
    const Contour& contour = solid->GetContours()[0];
    EXPECT_TRUE(cadcam::tqIsClosedContinuousAndSimple(contour));
    EXPECT_GT(cadcam::tq2dContourProperties<double>(contour).GetSignedArea(), 0);
    return contour;
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

tqPoint2d EndOf(const Contour& contour, std::size_t index) {
    return cadcam::tq2dContourProperties<double>(contour).GetEnd(index);
}

/// The item ends in order, given as x, y pairs.
void ExpectEnds(const Contour& contour, const std::vector<double>& xy) {
    ASSERT_EQ(contour.GetCount() * 2, xy.size());
    for (std::size_t i = 0; i < contour.GetCount(); ++i)
        ExpectPoint(EndOf(contour, i), {xy[2 * i], xy[2 * i + 1]}, "end");
}

/// The working corner of the given angle: an arc about (0, r), symmetric about the Z axis, whose lowest point is
/// the origin.
void ExpectWorkingCorner(const Contour& contour, double r, double cornerAngle) {
    ExpectArc(contour, 0, {0, r}, r, 180 - cornerAngle);
    const cadcam::tq2dContourProperties<double> items(contour);
    ExpectPoint(items.GetStart(0), {-r * Cos(cornerAngle / 2), r - r * Sin(cornerAngle / 2)}, "corner start");
    ExpectPoint(items.GetEnd(0), {r * Cos(cornerAngle / 2), r - r * Sin(cornerAngle / 2)}, "corner end");
}

TEST(InsertContour, TriangleHasThreeRoundedCorners) {
    const double r = 0.8, side = 12.7 * std::sqrt(3.0), t = r * std::sqrt(3.0);
    const Contour contour = InsertContour(cadcam::tqTriangleTurningTool(kMetric, Arbor(), Holder(), 4.76, r, 12.7));
    ASSERT_EQ(contour.GetCount(), 6u);
    ExpectWorkingCorner(contour, r, 60);
    // The sharp working corner lies 2r below the arc centre; the next one a side further up the 60° edge.
    const tqPoint2d v0(0, -r), v1 = v0 + tqPoint2d(Cos(60), Sin(60)) * side,
                               v2 = v0 + tqPoint2d(-Cos(60), Sin(60)) * side;
    ExpectPoint(EndOf(contour, 1), v1 - tqPoint2d(Cos(60), Sin(60)) * t, "line to corner 1");
    ExpectArc(contour, 2, v1 + tqPoint2d(-Cos(30), -Sin(30)) * (2 * r), r, 120);
    ExpectArc(contour, 4, v2 + tqPoint2d(Cos(30), -Sin(30)) * (2 * r), r, 120);
}

TEST(InsertContour, DiamondHasItsAcuteCornersOnTheAxis) {
    const double r = 0.4, angle = 55, hv = 6.35 / Sin(27.5), below = r / Sin(27.5);
    const Contour contour =
        InsertContour(cadcam::tqDiamondTurningTool(kMetric, Arbor(), Holder(1), 4.76, r, 12.7, angle));
    ASSERT_EQ(contour.GetCount(), 8u);
    ExpectWorkingCorner(contour, r, angle);
    const double sharpY = r - below;
    ExpectArc(contour, 2, {6.35 / Cos(27.5) - r / Sin(62.5), sharpY + hv}, r, angle);
    ExpectArc(contour, 4, {0, sharpY + 2 * hv - below}, r, 180 - angle);
    ExpectArc(contour, 6, {-6.35 / Cos(27.5) + r / Sin(62.5), sharpY + hv}, r, angle);
}

TEST(InsertContour, RoundIsFourQuarterArcsFromTheOrigin) {
    const Contour contour = InsertContour(cadcam::tqRoundTurningTool(kMetric, Arbor(), Holder(6), 4.76, 12.7));
    ExpectEnds(contour, {6.35, 6.35, 0, 12.7, -6.35, 6.35, 0, 0});
    for (std::size_t i = 0; i < 4; ++i) ExpectArc(contour, i, {0, 6.35}, 6.35, 90);
}

TEST(InsertContour, GrooveTypeAStandsOnItsCentredTipEdge) {
    const double h = 0.5 * std::tan(30 * cadcam::tqPi<double> / 180);
    const Contour contour = InsertContour(Groove(kMetric, Arbor(), Holder(8), 4, Groove::TYPE_A, 0.2, 20, 3, 5, 4, 30));
    ExpectEnds(contour, {-1.3, 0, 1.3, 0, 1.5, 0.2, 1.5, 5, 2, 5 + h, 2, 20, -2, 20, -2, 5 + h, -1.5, 5, -1.5, 0.2});
    ExpectArc(contour, 0, {-1.3, 0.2}, 0.2, 90);
    ExpectArc(contour, 2, {1.3, 0.2}, 0.2, 90);
}

TEST(InsertContour, GrooveTypeEHasItsVTipOnTheOrigin) {
    const double r = 0.2, e = 40, hv = 1.5 / std::tan(e * cadcam::tqPi<double> / 180);
    const Contour contour = InsertContour(Groove(kMetric, Arbor(), Holder(8), 4, Groove::TYPE_E, r, 20, 3, 5, 4, e));
    ASSERT_EQ(contour.GetCount(), 10u);
    ExpectWorkingCorner(contour, r, 2 * e);
    // Everything moves down by the distance from the sharp tip to the arc's lowest point.
    const double up = r - r / Sin(e);
    const tqPoint2d corner(r * Cos(e), r - r * Sin(e));
    ExpectEnds(contour, {corner.x, corner.y, 1.5, hv + up, 1.5,  5 + up, 2,    5 + up,  2,         20 + up,
                         -2,       20 + up,  -2,  5 + up,  -1.5, 5 + up, -1.5, hv + up, -corner.x, corner.y});
}

TEST(InsertContour, GrooveTypeDIsAHalfCircleTip) {
    const Contour contour = InsertContour(Groove(kMetric, Arbor(), Holder(8), 4, Groove::TYPE_D, 1.5, 20, 3, 5, 4, 30));
    ExpectArc(contour, 0, {0, 1.5}, 1.5, 90);
    ExpectArc(contour, 1, {0, 1.5}, 1.5, 90);
    ExpectPoint(EndOf(contour, 0), {0, 0}, "tip");
}

TEST(InsertContour, ContourTurningRunsCounterclockwiseWhateverItWasGiven) {
    // A clockwise square with one arc corner.
    Contour clockwise;
    const tqPoint2d p[] = {{0, 0}, {0, 10}, {10, 10}, {10, 2}, {8, 0}};
    for (int i = 0; i < 3; ++i) clockwise.Append(Contour::Item(new cadcam::tq2dLine<double>(p[i], p[i + 1])));
    clockwise.Append(Contour::Item(new cadcam::tq2dArc<double>(p[3], p[4], {8, 2}, cadcam::tqArcDirection::Clockwise)));
    clockwise.Append(Contour::Item(new cadcam::tq2dLine<double>(p[4], p[0])));
    const cadcam::tqContourTurningSolidDefinition<double> solid(kMetric, 20, Turning::H_RIGHT, Turning::SK_RECTANGULAR,
                                                                clockwise);
    const Contour contour = InsertContour(cadcam::tqContourTurningTool(kMetric, Arbor(), Holder(1), 3, solid));
    ExpectEnds(contour, {8, 0, 10, 2, 10, 10, 0, 10, 0, 0});
    ExpectArc(contour, 1, {8, 2}, 2, 90);
}

/// A tool moved to inch has the cutting part of one built from its inch parameters.
template <class Tool, class Make>
void ExpectRebuiltInInch(const Tool& metric, Make make) {
    Tool inch(metric);
    inch.SetUnits(kInch);
    const Tool fresh = make(inch);
    EXPECT_TRUE(inch.GetCuttingPart()->IsEqual(*fresh.GetCuttingPart()));
    EXPECT_EQ(inch.GetCuttingPart()->GetUnits(), kInch);
    EXPECT_FALSE(metric.GetCuttingPart()->IsEqual(*inch.GetCuttingPart()));
    EXPECT_EQ(metric.GetCuttingPart()->GetUnits(), kMetric);
}

TEST(InsertContour, AChangeOfUnitsRebuildsTheInsert) {
    ExpectRebuiltInInch(cadcam::tqTriangleTurningTool(kMetric, Arbor(), Holder(), 4.76, 0.8, 12.7), [](const auto& t) {
        return cadcam::tqTriangleTurningTool(kInch, t.GetArbor(), t.GetHolder(), t.GetInsertThickness(),
                                             t.GetCornerRadius(), t.GetInscribedCircleDiameter());
    });
    ExpectRebuiltInInch(
        Groove(kMetric, Arbor(), Holder(8), 4, Groove::TYPE_E, 0.2, 20, 3, 5, 4, 40), [](const auto& t) {
            return Groove(kInch, t.GetArbor(), t.GetHolder(), t.GetInsertThickness(), t.GetGroovingTurningToolType(),
                          t.GetCornerRadius(), t.GetA(), t.GetB(), t.GetC(), t.GetD(), t.GetE());
        });
}

}  // namespace
}  // namespace turningtest
