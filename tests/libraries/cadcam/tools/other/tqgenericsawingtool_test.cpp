// tqGenericSawingTool: the blade thickness rule, equality and scaling.
#include "cadcam/tools/other/tqgenericsawingtool.h"

#include <cmath>
#include <limits>

#include "othertestsupport.h"

namespace othertest {
namespace {

using cadcam::tqGenericSawingTool;

TEST(tqGenericSawingTool, TheBladeThicknessMustBePositive) {
    const tqGenericSawingTool saw(kMetric, Arbor(), Holder(), 2.5);
    EXPECT_EQ(saw.GetBladeThickness(), 2.5);
    EXPECT_NO_THROW(tqGenericSawingTool(kMetric, Arbor(), Holder(), std::numeric_limits<double>::denorm_min()));
    for (double thickness : {0.0, -1.0, std::nan("")}) {
        EXPECT_THROW_CODE(tqGenericSawingTool(kMetric, Arbor(), Holder(), thickness), cadcam::tqcadcamException, 2302,
                          "Invalid blade thickness for Sawing tool, must be greater than 0");
    }
    ExpectScaledByUnits<tqGenericSawingTool>(
        saw, [](const tqGenericSawingTool& t) { return std::vector<double>{t.GetBladeThickness()}; },
        [](const tqGenericSawingTool&) { return std::vector<double>{}; });
}

}  // namespace
}  // namespace othertest
