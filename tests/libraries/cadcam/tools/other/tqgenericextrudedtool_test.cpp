// tqGenericExtrudedTool: its one solid as a shared cutting part, the refusals, equality and scaling.
#include "cadcam/tools/other/tqgenericextrudedtool.h"

#include "cadcam/tools/parts/tqcuttingpartdefinition.h"
#include "cadcam/tools/solids/tqextrudedsoliddefinition.h"
#include "othertestsupport.h"

namespace othertest {
namespace {

using cadcam::tqGenericExtrudedTool;
using Extruded = cadcam::tqExtrudedSolidDefinition<double>;

SolidPointer Plate(double thickness) {
    cadcam::tq2dContour<double> square;
    const cadcam::tqPoint2d points[] = {{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}};
    for (int i = 1; i < 5; ++i) {
        square.Append(
            misc::tqAutoPointer<cadcam::tq2dGeometry<double>>(new cadcam::tq2dLine<double>(points[i - 1], points[i])));
    }
    return SolidPointer(new Extruded(kMetric, {0, -thickness, 0}, 0, {0, -1, 0}, {square}));
}

TEST(tqGenericExtrudedTool, ItsSolidIsItsSharedCuttingPart) {
    const SolidPointer plate = Plate(2);
    const tqGenericExtrudedTool tool(kMetric, Arbor(), Holder(), plate);
    EXPECT_EQ(tool.GetSolid().Get(), plate.Get());
    EXPECT_EQ(tool.GetCuttingPart()->GetSolid().Get(), plate.Get());
    EXPECT_EQ(tool.GetCuttingPart()->GetUnits(), kMetric);
    EXPECT_NO_THROW(tqGenericExtrudedTool(kMetric, Arbor(), Holder(), Revolved({{0, 0}, {5, 0}, {5, 10}})));
}

TEST(tqGenericExtrudedTool, ANullSolidOrABadCuttingProfileIsRefused) {
    EXPECT_THROW_CODE(tqGenericExtrudedTool(kMetric, Arbor(), Holder(), SolidPointer()), misc::tqException, 0,
                      "Accessing TQ_NULL pointer");
    EXPECT_THROW_CODE(tqGenericExtrudedTool(kMetric, Arbor(), Holder(), Revolved({{0, 1}, {5, 1}, {5, 10}})),
                      cadcam::tqcadcamException, 2202, "Cutting part profile must start at Y=0");
}

TEST(tqGenericExtrudedTool, UnitsScaleACopyOfTheSolid) {
    const SolidPointer plate = Plate(25.4);
    const tqGenericExtrudedTool tool(kMetric, Arbor(), Holder(), plate);
    tqGenericExtrudedTool inch(tool);
    inch.SetUnits(kInch);
    const auto scaled = inch.GetSolid().DynamicCast<Extruded>();
    ASSERT_TRUE(scaled.IsNotNull());
    EXPECT_EQ(scaled->GetUnits(), kInch);
    EXPECT_EQ(inch.GetCuttingPart()->GetUnits(), kInch);
    EXPECT_DOUBLE_EQ(scaled->GetExtrusionVector().y, -1);
    EXPECT_EQ(plate.DynamicCast<Extruded>()->GetExtrusionVector().y, -25.4) << "the shared solid stays";
    EXPECT_EQ(tool.GetSolid().Get(), plate.Get());
    EXPECT_FALSE(inch == tool);
}

}  // namespace
}  // namespace othertest
