// tqSpherMill: only the common parameters and their rules.
#include "cadcam/tools/revolved/tqsphermill.h"

#include "revolvedtest.h"

namespace {

using cadcam::tqSpherMill;
using Extender = cadcam::tqTypedRevolvedTool::tqShoulderDefinitionExtender;
using namespace revolvedtest;

TEST(tqSpherMill, RunsTheCommonRules) {
    EXPECT_THROW_CODE(tqSpherMill(kMetric, {}, {}, 10, kNaN, 30), cadcam::tqcadcamException, 2103,
                      "Invalid flute length");
    EXPECT_THROW_CODE(tqSpherMill(kMetric, {}, {}, 10, 20, 30, Extender(kMetric, 10, Up(30))),
                      cadcam::tqcadcamException, 2187,
                      "Shoulder base length must be >= flute length and <= shoulder length");
}

}  // namespace
