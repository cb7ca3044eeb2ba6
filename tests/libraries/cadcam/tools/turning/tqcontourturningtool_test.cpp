// tqContourTurningTool: the contour solid it holds, the family rules, equality and scaling.
#include "cadcam/tools/turning/tqcontourturningtool.h"

#include <vector>

#include "cadcam/geometry/tq2dline.h"
#include "turningtestsupport.h"

namespace turningtest {
namespace {

using cadcam::tqContourTurningTool;
using ContourSolid = cadcam::tqContourTurningSolidDefinition<double>;

ContourSolid Triangle(double size) {
    cadcam::tq2dContour<double> contour;
    const cadcam::tqPoint2d points[] = {{0, 0}, {size, size}, {-size, size}, {0, 0}};
    for (int i = 1; i < 4; ++i) {
        contour.Append(
            misc::tqAutoPointer<cadcam::tq2dGeometry<double>>(new cadcam::tq2dLine<double>(points[i - 1], points[i])));
    }
    return ContourSolid(kMetric, 125, ContourSolid::H_RIGHT, ContourSolid::SK_RECTANGULAR, contour);
}

TEST(tqContourTurningTool, HoldsItsContourSolid) {
    const tqContourTurningTool tool(kMetric, Arbor(), Holder(1), 3, Triangle(10));
    EXPECT_EQ(tool.GetInsertThickness(), 3);
    EXPECT_TRUE(tool.GetContourSolid() == Triangle(10));
}

TEST(tqContourTurningTool, OnlyTheFamilyRulesApply) {
    ExpectFamilyRulesFirst([](const HolderPointer& holder, double thickness) {
        tqContourTurningTool(kMetric, Arbor(), holder, thickness, Triangle(10));
    });
    // A contour turning solid is a turning holder as well.
    misc::tqAutoPointer<cadcam::tqSolidDefinition<double>> solid(new ContourSolid(Triangle(40)));
    const HolderPointer contourHolder(new cadcam::tqHolderDefinition<double>(kMetric, solid));
    EXPECT_NO_THROW(tqContourTurningTool(kMetric, Arbor(), contourHolder, 3, Triangle(10)));
}

TEST(tqContourTurningTool, UnitsScaleTheSolidOfACopyOnly) {
    const tqContourTurningTool tool(kMetric, Arbor(), Holder(1), 3, Triangle(25.4));
    tqContourTurningTool inch(tool);
    inch.SetUnits(kInch);
    EXPECT_EQ(inch.GetContourSolid().GetUnits(), kInch);
    EXPECT_DOUBLE_EQ(inch.GetContourSolid().GetHeight(), 125 / 25.4);
    const auto end = inch.GetContourSolid().GetContour().GetItem(0).DynamicCast<cadcam::tq2dLine<double>>()->GetEnd();
    EXPECT_DOUBLE_EQ(end.x, 1);
    EXPECT_DOUBLE_EQ(inch.GetInsertThickness(), 3 / 25.4);
    EXPECT_TRUE(tool.GetContourSolid() == Triangle(25.4));
}

}  // namespace
}  // namespace turningtest
