// tqSpeedShapeTool: any values are taken; lengths scale, angles do not.
#include "cadcam/tools/other/tqspeedshapetool.h"

#include "othertestsupport.h"

namespace othertest {
namespace {

using cadcam::tqSpeedShapeTool;

std::vector<double> Lengths(const tqSpeedShapeTool& t) {
    return {t.GetWidth(), t.GetLength(), t.GetCornerRadius(), t.GetConicLength(), t.GetArcRadius(), t.GetDepth()};
}

TEST(tqSpeedShapeTool, TakesAnyValuesAndScalesOnlyLengths) {
    const tqSpeedShapeTool tool(kMetric, Arbor(), Holder(), 10, 30, 1, 8, 20, 5, 40, 3);
    EXPECT_EQ(Lengths(tool), (std::vector<double>{10, 30, 1, 8, 40, 3}));
    EXPECT_EQ(tool.GetConicAngle(), 20);
    EXPECT_EQ(tool.GetRampAngle(), 5);
    EXPECT_NO_THROW(tqSpeedShapeTool(kMetric, Arbor(), Holder(), 0, -1, -2, 0, 400, -400, 0, 0));
    ExpectScaledByUnits<tqSpeedShapeTool>(tool, Lengths, [](const tqSpeedShapeTool& t) {
        return std::vector<double>{t.GetConicAngle(), t.GetRampAngle()};
    });
}

}  // namespace
}  // namespace othertest
