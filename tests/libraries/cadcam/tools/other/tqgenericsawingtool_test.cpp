// tqGenericSawingTool: the blade thickness rule.
#include "cadcam/tools/other/tqgenericsawingtool.h"

#include <cmath>
#include <limits>

#include "othertestsupport.h"

namespace othertest {
namespace {

using cadcam::tqGenericSawingTool;

TEST(tqGenericSawingTool, TheBladeThicknessMustBePositive) {
    EXPECT_NO_THROW(tqGenericSawingTool(kMetric, Arbor(), Holder(), std::numeric_limits<double>::denorm_min()));
    for (double thickness : {0.0, -1.0, std::nan("")}) {
        EXPECT_THROW_CODE(tqGenericSawingTool(kMetric, Arbor(), Holder(), thickness), E, 2302,
                          "Invalid blade thickness for Sawing tool, must be greater than 0");
    }
    ExpectScaledByUnits<tqGenericSawingTool>(tqGenericSawingTool(kMetric, Arbor(), Holder(), 2.5),
                                             {&tqGenericSawingTool::GetBladeThickness});
}

}  // namespace
}  // namespace othertest
