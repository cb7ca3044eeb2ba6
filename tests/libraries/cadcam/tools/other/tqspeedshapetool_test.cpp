// tqSpeedShapeTool: any values are taken; lengths scale, angles do not.
#include "cadcam/tools/other/tqspeedshapetool.h"

#include "cadcam/geometry/tq2dcontourproperties.h"
#include "cadcam/tools/parts/tqcuttingpartdefinition.h"
#include "cadcam/tools/solids/tqextrudedsoliddefinition.h"
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

TEST(tqSpeedShapeTool, ItsCuttingPartIsTheEnvelope) {
    auto extrusion = [](const tqSpeedShapeTool& tool) {
        return tool.GetCuttingPart()->GetSolid().DynamicCast<cadcam::tqExtrudedSolidDefinition<double>>();
    };
    const auto solid = extrusion(tqSpeedShapeTool(kMetric, Arbor(), Holder(), 10, 30, 1, 8, 20, 5, 40, 3));
    ASSERT_TRUE(solid.IsNotNull());
    EXPECT_EQ(solid->GetExtrusionVector(), cadcam::tqTPoint3d<double>(0, -3, 0));
    ASSERT_EQ(solid->GetContours().size(), 1u);
    const cadcam::tq2dContourProperties<double> items(solid->GetContours()[0]);
    ASSERT_EQ(items.GetCount(), 4u);
    EXPECT_EQ(items.GetStart(0), cadcam::tqPoint2d(-5, 0));
    EXPECT_EQ(items.GetStart(2), cadcam::tqPoint2d(5, 30));
    EXPECT_GT(items.GetSignedArea(), 0);
    // Without a positive size there is nothing to show.
    EXPECT_TRUE(
        extrusion(tqSpeedShapeTool(kMetric, Arbor(), Holder(), 10, 30, 1, 8, 20, 5, 40, 0))->GetContours().empty());
}

}  // namespace
}  // namespace othertest
