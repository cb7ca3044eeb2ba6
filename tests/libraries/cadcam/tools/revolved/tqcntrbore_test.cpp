// tqCntrBore: a counterbore has only the common parameters and their rules.
#include "cadcam/tools/revolved/tqcntrbore.h"

#include "revolvedtest.h"

namespace {

using cadcam::tqCntrBore;
using Extender = cadcam::tqTypedRevolvedTool::tqShoulderDefinitionExtender;
using namespace revolvedtest;

TEST(tqCntrBore, RunsTheCommonRules) {
    EXPECT_THROW_CODE(tqCntrBore(kMetric, {}, {}, 0, 20, 40), cadcam::tqcadcamException, 2105, "Invalid tool diameter");
    EXPECT_THROW_CODE(tqCntrBore(kMetric, {}, {}, 10, Up(40), 40), cadcam::tqcadcamException, 2107,
                      "Invalid shoulder length");
    EXPECT_THROW_CODE(tqCntrBore(kMetric, {}, {}, 10, 20, 40, Extender(kMetric, 10, Down(20))),
                      cadcam::tqcadcamException, 2187,
                      "Shoulder base length must be >= flute length and <= shoulder length");
}

}  // namespace
