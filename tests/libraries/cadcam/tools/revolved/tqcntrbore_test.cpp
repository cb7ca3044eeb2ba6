// tqCntrBore: a counterbore has only the common parameters, their rules and the default extender.
#include "cadcam/tools/revolved/tqcntrbore.h"

#include "drillingtestutil.h"

namespace {

using cadcam::tqCntrBore;
using Extender = cadcam::tqTypedRevolvedTool::tqShoulderDefinitionExtender;
using namespace drillingtest;

TEST(tqCntrBore, BuildsWithTheDefaultExtenderAtTheFlutes) {
    const tqCntrBore tool(kMetric, {}, {}, 10, 20, 40);
    EXPECT_EQ(tool.GetDiameter(), 10);
    EXPECT_EQ(tool.GetFluteLength(), 20);
    EXPECT_EQ(tool.GetShoulderLength(), 40);
    EXPECT_EQ(tool.GetShoulderDefinitionExtender(), Extender(kMetric, 10, 20));
    EXPECT_EQ(tool, tqCntrBore(kMetric, {}, {}, 10, 20, 40, Extender(kMetric, 10, 20)));
    EXPECT_NE(tool, tqCntrBore(kMetric, {}, {}, 10, 20, 40, Extender(kMetric, 10, 25)));
}

TEST(tqCntrBore, RunsTheCommonRules) {
    EXPECT_THROW_CODE(tqCntrBore(kMetric, {}, {}, 0, 20, 40), cadcam::tqcadcamException, 2105, "Invalid tool diameter");
    EXPECT_THROW_CODE(tqCntrBore(kMetric, {}, {}, 10, Up(40), 40), cadcam::tqcadcamException, 2107,
                      "Invalid shoulder length");
    EXPECT_THROW_CODE(tqCntrBore(kMetric, {}, {}, 10, 20, 40, Extender(kMetric, 10, Down(20))),
                      cadcam::tqcadcamException, 2187,
                      "Shoulder base length must be >= flute length and <= shoulder length");
}

}  // namespace
