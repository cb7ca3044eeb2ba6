// tqContourTurningTool: only the family rules, and the contour solid it holds scaled in a copy only.
#include "cadcam/tools/turning/tqcontourturningtool.h"

#include "turningtestsupport.h"

namespace turningtest {
namespace {

using cadcam::tqContourTurningTool;
using ContourSolid = cadcam::tqContourTurningSolidDefinition<double>;

ContourSolid Triangle(double size) {
    return ContourSolid(kMetric, 125, ContourSolid::H_RIGHT, ContourSolid::SK_RECTANGULAR,
                        Profile(0, 0).L(size, size).L(-size, size).L(0, 0).Get());
}

TEST(tqContourTurningTool, OnlyTheFamilyRulesApply) {
    ExpectFamilyRulesFirst([](const HolderPointer& holder, double thickness) {
        tqContourTurningTool(kMetric, Arbor(), holder, thickness, Triangle(10));
    });
    // A contour turning solid is a turning holder as well.
    const HolderPointer contourHolder(
        new cadcam::tqHolderDefinition<double>(kMetric, SolidPointer(new ContourSolid(Triangle(40)))));
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
