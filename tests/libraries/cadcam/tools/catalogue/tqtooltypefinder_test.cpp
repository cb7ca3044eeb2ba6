// tqToolTypeFinder, tqToolFinder and tqToolCaster over every class.
#include <gtest/gtest.h>

#include "cadcam/tools/tqtoolcaster.h"
#include "cadcam/tools/tqtoolfinder.h"
#include "cadcam/tools/tqtooltypefinder.h"
#include "typedtoollist.h"

namespace {

using cadcam::tqToolTypes;

template <class T>
class ToolKinds : public ::testing::Test {};
TYPED_TEST_SUITE(ToolKinds, tqtest::AllToolClasses);

TYPED_TEST(ToolKinds, RepresentationFamilyAndCastsFollowTheClass) {
    using T = TypeParam;
    const cadcam::tqTool& tool = *tqtest::SampleOf<T>().tool;
    constexpr bool generic = std::is_same<T, cadcam::tqGenericTool>::value ||
                             std::is_same<T, cadcam::tqGenericRevolvedTool>::value ||
                             std::is_same<T, cadcam::tqGenericExtrudedTool>::value ||
                             std::is_same<T, cadcam::tqGenericSawingTool>::value;
    const cadcam::tqToolTypeFinder kind(tool);
    EXPECT_EQ(kind.GetToolRepresentation(), generic ? tqToolTypes::TR_GENERIC : tqToolTypes::TR_TYPED);
    EXPECT_EQ(kind.GetToolFamily() == tqToolTypes::TF_REVOLVED, (std::is_base_of<cadcam::tqRevolvedTool, T>::value));

    EXPECT_EQ(cadcam::tqToolCaster::IsTypedRevolvedTool(tool), (std::is_base_of<cadcam::tqTypedRevolvedTool, T>::value));
    EXPECT_EQ(cadcam::tqToolCaster::IsTypedExtrudedTool(tool), (std::is_base_of<cadcam::tqTypedExtrudedTool, T>::value));
    EXPECT_EQ(cadcam::tqToolCaster::IsGenericRevolvedTool(tool), (std::is_same<T, cadcam::tqGenericRevolvedTool>::value));
    EXPECT_EQ(cadcam::tqToolCaster::IsGenericTool(tool), (std::is_same<T, cadcam::tqGenericTool>::value));
    if (cadcam::tqToolCaster::IsTypedRevolvedTool(tool)) {
        EXPECT_EQ(static_cast<const void*>(cadcam::tqToolCaster::ToTypedRevolvedTool(tool)),
                  static_cast<const void*>(&static_cast<const T&>(tool)));
    }
}

TEST(tqToolFinder, NamesEveryClassInListOrder) {
    EXPECT_STREQ(cadcam::tqToolFinder(*tqtest::SampleOf<cadcam::tqContourTurningTool>().tool).GetClassName(),
                 "tqContourTurningTool");
    EXPECT_STREQ(cadcam::tqToolFinder(*tqtest::SampleOf<cadcam::tqBoreBar>().tool).GetClassName(), "tqBoreBar");
    EXPECT_EQ(cadcam::tqToolFinder(*tqtest::SampleOf<cadcam::tqBoreBar>().tool).GetIndex(), 47u);
    EXPECT_STREQ(cadcam::tqToolFinder().GetClassName(), "");
    EXPECT_STREQ(cadcam::tqToolFinder::ClassNameAt(48), "");
}

}  // namespace
