// tqTool: a change of units scales lengths and leaves shared definitions alone; the heights of typed tools.
#include <gtest/gtest.h>

#include <cmath>

#include "cadcam/tools/parts/tqholderdefinition.h"
#include "cadcam/tools/tqtoolcaster.h"
#include "typedtoollist.h"

namespace {

using measures::tqUnitsFactory;

/// Whether two doubles lie within `ulps` representable steps of each other.
bool WithinUlps(double a, double b, int ulps) {
    if (a == b) return true;
    double next = a;
    for (int i = 0; i < ulps; ++i) {
        next = std::nextafter(next, b);
        if (next == b) return true;
    }
    return false;
}

template <class T>
class ToolUnits : public ::testing::Test {};
TYPED_TEST_SUITE(ToolUnits, tqtest::AllToolClasses);

// One unit in the last place per conversion.
TYPED_TEST(ToolUnits, MetricToInchToMetricGivesTheParametersBack) {
    const auto& sample = tqtest::SampleOf<TypeParam>();
    const auto before = sample.parameters(*sample.tool);
    const auto holderBefore = sample.tool->GetHolder();
    auto tool = sample.tool->Clone();

    tool->SetUnits(tqUnitsFactory::Inch);
    EXPECT_EQ(tool->GetUnits(), tqUnitsFactory::Inch);
    if (tool->GetHolder().IsNotNull()) {
        EXPECT_EQ(tool->GetHolder()->GetUnits(), tqUnitsFactory::Inch);
    }
    EXPECT_FALSE(tool->IsEqual(*sample.tool));

    tool->SetUnits(tqUnitsFactory::Metric);
    const auto after = sample.parameters(*tool);
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
        EXPECT_TRUE(WithinUlps(before[i], after[i], 2)) << "parameter " << i << ": " << before[i] << " became "
                                                         << after[i];
    }
    // The source tool and the definitions it shares are untouched.
    EXPECT_EQ(sample.parameters(*sample.tool), before);
    EXPECT_EQ(sample.tool->GetHolder().Get(), holderBefore.Get());
    EXPECT_EQ(sample.tool->GetUnits(), tqUnitsFactory::Metric);
}

TYPED_TEST(ToolUnits, SuppressedScalingKeepsTheNumbers) {
    const auto& sample = tqtest::SampleOf<TypeParam>();
    auto tool = sample.tool->Clone();
    tool->SetUnits(tqUnitsFactory::Inch, true);
    EXPECT_EQ(sample.parameters(*tool), sample.parameters(*sample.tool));
}

TEST(tqTool, TypedRevolvedHeightsAreTheFluteAndShoulderLengths) {
    for (const auto& entry : tqtest::AllSamples()) {
        const auto* typed = cadcam::tqToolCaster::ToTypedRevolvedTool(*entry.second.tool);
        if (typed == nullptr) continue;
        SCOPED_TRACE(entry.first.name());
        EXPECT_EQ(typed->PartHeightOf(cadcam::tqTool::kCuttingPart), typed->GetFluteLength());
        EXPECT_EQ(typed->PartHeightOf(cadcam::tqTool::kCuttingPart | cadcam::tqTool::kNonCuttingPart),
                  typed->GetShoulderLength());
        EXPECT_FALSE(typed->PartHeightOf(0).has_value());
    }
}

}  // namespace
