// tqParallelogramTurningTool: its rules in order, the straight edge left between the two fillets at its boundary.
#include "cadcam/tools/turning/tqparallelogramturningtool.h"

#include <cmath>
#include <limits>

#include "tools/shape/profiletoolkit.h"
#include "turningtestsupport.h"

namespace turningtest {
namespace {

using cadcam::tqParallelogramTurningTool;

tqParallelogramTurningTool Make(double cornerRadius, double formAngle, double width, double length) {
    return tqParallelogramTurningTool(kMetric, Arbor(), Holder(2), 4.76, cornerRadius, formAngle, width, length);
}

TEST(tqParallelogramTurningTool, EachRuleFiresAtItsBoundaryInOrder) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const char* angleText = "Form angle must be between 0 and 90 degrees.";
    const char* edgeText = "Cutting edge distance must be greater than 0.";
    EXPECT_THROW_CODE(Make(0, 0, 0, 0), E, 2342, "Corner radius must be greater than 0.");
    EXPECT_THROW_CODE(Make(0.4, 90, 0, 0), E, 2346, angleText);
    EXPECT_THROW_CODE(Make(0.4, nan, 8, 16), E, 2346, angleText);
    EXPECT_THROW_CODE(Make(0.4, 55, 0, 0), E, 2347, "Width must be greater than 0.");
    EXPECT_THROW_CODE(Make(4, 55, 8, 0), E, 2344, "Corner radius must be less than half of inscribed circle diameter.");
    EXPECT_NO_THROW(Make(std::nextafter(4.0, 0.0), 55, 8, 100));
    // The fillets at an acute and an obtuse corner take r/tan(ε/2) + r·tan(ε/2) = 2r/sin ε of the long edge.
    const double consumed = 2 * 0.4 / cadcam::shape::SinDegrees(55);
    EXPECT_THROW_CODE(Make(0.4, 55, 8, consumed), E, 2348, edgeText);
    EXPECT_NO_THROW(Make(0.4, 55, 8, std::nextafter(consumed, 1.0)));
    EXPECT_THROW_CODE(Make(0.4, 55, 8, nan), E, 2348, edgeText);
    ExpectFamilyRulesFirst([](const HolderPointer& holder, double thickness) {
        tqParallelogramTurningTool(kMetric, Arbor(), holder, thickness, 0, 0, 0, 0);
    });
    using P = tqParallelogramTurningTool;
    ExpectScaledByUnits<P>(Make(0.4, 55, 8, 16), {&P::GetCornerRadius, &P::GetWidth, &P::GetLength},
                           {&P::GetFormAngle});
}

}  // namespace
}  // namespace turningtest
