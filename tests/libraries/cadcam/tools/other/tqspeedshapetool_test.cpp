// tqSpeedShapeTool: any values are taken, lengths scale and angles do not, and its cutting part is its envelope.
#include "cadcam/tools/other/tqspeedshapetool.h"

#include "cadcam/geometry/tq2dcontourproperties.h"
#include "cadcam/tools/parts/tqcuttingpartdefinition.h"
#include "cadcam/tools/solids/tqextrudedsoliddefinition.h"
#include "othertestsupport.h"

namespace othertest {
namespace {

using S = cadcam::tqSpeedShapeTool;

misc::tqAutoPointer<cadcam::tqExtrudedSolidDefinition<double>> Envelope(const S& tool) {
    return tool.GetCuttingPart()->GetSolid().DynamicCast<cadcam::tqExtrudedSolidDefinition<double>>();
}

TEST(tqSpeedShapeTool, TakesAnyValuesAndScalesOnlyLengths) {
    EXPECT_NO_THROW(S(kMetric, Arbor(), Holder(), 0, -1, -2, 0, 400, -400, 0, 0));
    ExpectScaledByUnits<S>(
        S(kMetric, Arbor(), Holder(), 10, 30, 1, 8, 20, 5, 40, 3),
        {&S::GetWidth, &S::GetLength, &S::GetCornerRadius, &S::GetConicLength, &S::GetArcRadius, &S::GetDepth},
        {&S::GetConicAngle, &S::GetRampAngle});
}

TEST(tqSpeedShapeTool, ItsCuttingPartIsTheEnvelope) {
    const auto solid = Envelope(S(kMetric, Arbor(), Holder(), 10, 30, 1, 8, 20, 5, 40, 3));
    ASSERT_TRUE(solid.IsNotNull());
    EXPECT_EQ(solid->GetExtrusionVector(), cadcam::tqTPoint3d<double>(0, -3, 0));
    ASSERT_EQ(solid->GetContours().size(), 1u);
    const cadcam::tq2dContourProperties<double> items(solid->GetContours()[0]);
    ASSERT_EQ(items.GetCount(), 4u);
    EXPECT_EQ(items.GetStart(0), cadcam::tqPoint2d(-5, 0));
    EXPECT_EQ(items.GetStart(2), cadcam::tqPoint2d(5, 30));
    EXPECT_GT(items.GetSignedArea(), 0);
    // Without a positive size there is nothing to show.
    EXPECT_TRUE(Envelope(S(kMetric, Arbor(), Holder(), 10, 30, 1, 8, 20, 5, 40, 0))->GetContours().empty());
}

}  // namespace
}  // namespace othertest
