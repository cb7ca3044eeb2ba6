// tqToolCloner and tqToolComparator over every class: clones compare equal, any one changed parameter does not.
#include <gtest/gtest.h>

#include "cadcam/tools/tqtoolcloner.h"
#include "cadcam/tools/tqtoolcomparator.h"
#include "cadcam/tools/tqtoolfinder.h"
#include "typedtoollist.h"

namespace {

template <class T>
class ToolCopies : public ::testing::Test {};
TYPED_TEST_SUITE(ToolCopies, tqtest::AllToolClasses);

TYPED_TEST(ToolCopies, ACloneIsOfTheSameClassAndEqual) {
    const auto& tool = tqtest::SampleOf<TypeParam>().tool;
    const auto clone = cadcam::tqToolCloner::Clone(*tool);
    ASSERT_TRUE(clone.IsNotNull());
    EXPECT_NE(clone.Get(), tool.Get());
    EXPECT_EQ(cadcam::tqToolFinder(*clone).GetIndex(), cadcam::tqToolFinder(*tool).GetIndex());
    EXPECT_TRUE(cadcam::tqToolComparator::Compare(*clone, *tool));
    EXPECT_TRUE(tool->IsEqual(*clone));
    EXPECT_TRUE(static_cast<const TypeParam&>(*clone) == static_cast<const TypeParam&>(*tool));
}

TYPED_TEST(ToolCopies, EveryOneParameterVariantIsUnequal) {
    const auto& sample = tqtest::SampleOf<TypeParam>();
    ASSERT_FALSE(sample.variants.empty());
    for (std::size_t i = 0; i < sample.variants.size(); ++i) {
        SCOPED_TRACE("variant " + std::to_string(i));
        EXPECT_EQ(cadcam::tqToolFinder(*sample.variants[i]).GetIndex(), cadcam::tqToolFinder(*sample.tool).GetIndex());
        EXPECT_FALSE(sample.variants[i]->IsEqual(*sample.tool));
        EXPECT_FALSE(sample.tool->IsEqual(*sample.variants[i]));
    }
}

TEST(tqToolComparator, ToolsOfDifferentClassesAreUnequal) {
    const auto& samples = tqtest::AllSamples();
    for (const auto& a : samples) {
        for (const auto& b : samples) {
            EXPECT_EQ(a.second.tool->IsEqual(*b.second.tool), a.first == b.first) << a.first.name() << b.first.name();
        }
    }
}

}  // namespace
