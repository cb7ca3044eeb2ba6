// tqSpherMill: only the common parameters; the default extender also when the flutes end inside the ball.
#include "cadcam/tools/revolved/tqsphermill.h"

#include "drillingtestutil.h"

namespace {

using cadcam::tqSpherMill;
using Extender = cadcam::tqTypedRevolvedTool::tqShoulderDefinitionExtender;
using namespace drillingtest;

TEST(tqSpherMill, DefaultExtenderIsTheDiameterAtTheFlutes) {
    const tqSpherMill mill(kMetric, {}, {}, 10, 20, 30);
    EXPECT_EQ(mill.GetShoulderDefinitionExtender(), Extender(kMetric, 10, 20));
    // Flutes below the ball's equator end narrower than the tool; the shank still takes the diameter.
    EXPECT_EQ(tqSpherMill(kMetric, {}, {}, 10, 2, 30).GetShoulderDefinitionExtender(), Extender(kMetric, 10, 2));
    EXPECT_EQ(tqSpherMill(kMetric, {}, {}, 10, 5, 5).GetShoulderDefinitionExtender(), Extender(kMetric, 10, 5));
    EXPECT_NE(mill, tqSpherMill(kMetric, {}, {}, 10, 20, 31));
}

TEST(tqSpherMill, RunsTheCommonRules) {
    EXPECT_THROW_CODE(tqSpherMill(kMetric, {}, {}, 10, kNaN, 30), cadcam::tqcadcamException, 2103,
                      "Invalid flute length");
    EXPECT_THROW_CODE(tqSpherMill(kMetric, {}, {}, 10, 20, 30, Extender(kMetric, 10, Up(30))),
                      cadcam::tqcadcamException, 2187,
                      "Shoulder base length must be >= flute length and <= shoulder length");
}

}  // namespace
