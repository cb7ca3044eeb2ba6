// tqDiamondTurningTool: the polygon insert rules and the form angle.
#include "cadcam/tools/turning/tqdiamondturningtool.h"

#include <cmath>
#include <limits>

#include "turningtestsupport.h"

namespace turningtest {
namespace {

using cadcam::tqDiamondTurningTool;

tqDiamondTurningTool Make(double cornerRadius, double inscribedCircleDiameter, double formAngle) {
    return tqDiamondTurningTool(kMetric, Arbor(), Holder(1), 4.76, cornerRadius, inscribedCircleDiameter, formAngle);
}

TEST(tqDiamondTurningTool, EachRuleFiresAtItsBoundaryInOrder) {
    EXPECT_THROW_CODE(Make(0, 0, 0), E, 2342, "Corner radius must be greater than 0.");
    EXPECT_THROW_CODE(Make(0.8, 0, 0), E, 2343, "Inscribed circle diameter must be greater than 0.");
    EXPECT_THROW_CODE(Make(6.35, 12.7, 0), E, 2344,
                      "Corner radius must be less than half of inscribed circle diameter.");
    for (double angle : {0.0, 90.0, -10.0, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_THROW_CODE(Make(0.8, 12.7, angle), E, 2346, "Form angle must be between 0 and 90 degrees.");
    }
    EXPECT_NO_THROW(Make(0.8, 12.7, std::nextafter(0.0, 1.0)));
    EXPECT_NO_THROW(Make(0.8, 12.7, std::nextafter(90.0, 0.0)));
    EXPECT_NO_THROW(Make(std::nextafter(6.35, 0.0), 12.7, 35));
    ExpectFamilyRulesFirst([](const HolderPointer& holder, double thickness) {
        tqDiamondTurningTool(kMetric, Arbor(), holder, thickness, 0, 0, 0);
    });
    ExpectScaledByUnits<tqDiamondTurningTool>(
        Make(0.8, 12.7, 55),
        {&tqDiamondTurningTool::GetCornerRadius, &tqDiamondTurningTool::GetInscribedCircleDiameter},
        {&tqDiamondTurningTool::GetFormAngle});
}

}  // namespace
}  // namespace turningtest
