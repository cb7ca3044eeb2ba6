// tqRoundTurningTool: its diameter rule.
#include "cadcam/tools/turning/tqroundturningtool.h"

#include <limits>

#include "turningtestsupport.h"

namespace turningtest {
namespace {

using cadcam::tqRoundTurningTool;

TEST(tqRoundTurningTool, ADiscOfAnyPositiveDiameterIsAnInsert) {
    EXPECT_NO_THROW(tqRoundTurningTool(kMetric, Arbor(), Holder(6), 4.76, std::numeric_limits<double>::denorm_min()));
    for (double diameter : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_THROW_CODE(tqRoundTurningTool(kMetric, Arbor(), Holder(6), 4.76, diameter), E, 2349,
                          "Round turning tool diameter must be greater than 0.");
    }
    ExpectFamilyRulesFirst([](const HolderPointer& holder, double thickness) {
        tqRoundTurningTool(kMetric, Arbor(), holder, thickness, 0);
    });
    ExpectScaledByUnits<tqRoundTurningTool>(tqRoundTurningTool(kMetric, Arbor(), Holder(6), 4.76, 12),
                                            {&tqRoundTurningTool::GetDiameter});
}

}  // namespace
}  // namespace turningtest
