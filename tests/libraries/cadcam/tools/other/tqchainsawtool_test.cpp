// tqChainSawTool: its rules in order, and the fit of the tip rounding for both blade outlines.
#include "cadcam/tools/other/tqchainsawtool.h"

#include <cmath>
#include <limits>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dcontourproperties.h"
#include "cadcam/tools/parts/tqcuttingpartdefinition.h"
#include "othertestsupport.h"

namespace othertest {
namespace {

using cadcam::tqChainSawTool;

struct Saw {
    double r;
    int radiusType;
    int sawType;
    double width, thickness, length, straight, upper;
};

tqChainSawTool Make(const Saw& s) {
    return tqChainSawTool(
        kMetric, Arbor(), Holder(), s.r, static_cast<tqChainSawTool::SawCornerRadiusType>(s.radiusType),
        static_cast<tqChainSawTool::ChainSawType>(s.sawType), s.width, s.thickness, s.length, s.straight, s.upper);
}

const Saw kStraight{2, tqChainSawTool::SCRT_CORNER, tqChainSawTool::CST_STRAIGHT, 10, 1.5, 100, 0, 10};
const Saw kSimple{2, tqChainSawTool::SCRT_CORNER, tqChainSawTool::CST_SIMPLE, 10, 1.5, 100, 60, 6};

Saw With(Saw s, double Saw::*field, double value) {
    s.*field = value;
    return s;
}

TEST(tqChainSawTool, EachRuleFiresAtItsBoundaryInOrder) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Saw broken{-1, 2, 2, 0, 0, 0, 1, 0};
    EXPECT_THROW_CODE(Make(broken), E, 2302, "Invalid blade thickness for Sawing tool, must be greater than 0");
    EXPECT_THROW_CODE(Make(With(broken, &Saw::thickness, 1)), E, 2109, "Unknown corner radius type");
    EXPECT_THROW_CODE(Make({-1, -1, 0, 10, 1, 100, 0, 10}), E, 2109, "Unknown corner radius type");
    EXPECT_THROW_CODE(Make({-1, 1, 2, 0, 1, 0, 1, 0}), E, 2141, "Invalid tool definition");
    EXPECT_THROW_CODE(Make({-1, 1, -1, 0, 1, 0, 1, 0}), E, 2141, "Invalid tool definition");
    EXPECT_THROW_CODE(Make({-1, 1, 1, nan, 1, 0, 1, 0}), E, 2303,
                      "Invalid blade width for Sawing tool, must be greater than 0");
    EXPECT_THROW_CODE(Make({-1, 1, 1, 10, 1, 0, 1, 0}), E, 2304,
                      "Invalid blade length for Sawing tool, must be greater than 0");
    EXPECT_THROW_CODE(Make({-1, 1, 1, 10, 1, std::nextafter(60.0, 0.0), 60, 0}), E, 2306,
                      "Blade length must be >= straight blade length for Sawing tool");
    EXPECT_THROW_CODE(Make(With(kStraight, &Saw::straight, nan)), E, 2306,
                      "Blade length must be >= straight blade length for Sawing tool");
    EXPECT_THROW_CODE(Make({-1, 1, 1, 10, 1, 60, 60, 0}), E, 2307,
                      "Invalid blade upper width for Sawing tool, must be greater than 0");
    EXPECT_THROW_CODE(Make(With(kSimple, &Saw::r, -std::numeric_limits<double>::denorm_min())), E, 2163,
                      "Invalid corner radius, it must be >= 0.");
    EXPECT_THROW_CODE(Make(With(kSimple, &Saw::r, nan)), E, 2163, "Invalid corner radius, it must be >= 0.");
    EXPECT_NO_THROW(Make(With(kSimple, &Saw::r, 0)));
    EXPECT_NO_THROW(Make(With(kSimple, &Saw::length, 60)));
    using C = tqChainSawTool;
    ExpectScaledByUnits<C>(Make(kSimple), {&C::GetCornerRadius, &C::GetBladeWidth, &C::GetBladeThickness,
                                           &C::GetBladeLength, &C::GetStraightBladeLength, &C::GetBladeUpperWidth});
}

TEST(tqChainSawTool, TheTipRoundingMustFitTheBlade) {
    const char* text = "Invalid corner radius, it must be >= 0.";
    // Both tip fillets share the tip edge: each may take half of the width.
    EXPECT_NO_THROW(Make(With(kStraight, &Saw::r, 5)));
    EXPECT_THROW_CODE(Make(With(kStraight, &Saw::r, 5 * (1 + 1e-12))), E, 2163, text);
    // A full radius is half the width whatever the corner radius, and needs sides that long.
    Saw full = With(kStraight, &Saw::r, 1000);
    full.radiusType = tqChainSawTool::SCRT_FULL;
    EXPECT_NO_THROW(Make(full));
    EXPECT_NO_THROW(Make(With(full, &Saw::length, 5)));
    EXPECT_THROW_CODE(Make(With(full, &Saw::length, 4.9)), E, 2163, text);
    // The simple blade's straight part bounds the fillet; without one the side runs to the upper width.
    EXPECT_NO_THROW(Make(With(With(kSimple, &Saw::straight, 3), &Saw::r, 3)));
    EXPECT_THROW_CODE(Make(With(With(kSimple, &Saw::straight, 3), &Saw::r, 3.01)), E, 2163, text);
    EXPECT_NO_THROW(Make(With(With(With(kSimple, &Saw::straight, 0), &Saw::upper, 20), &Saw::r, 4.9)));
    // The straight blade ignores the straight length beyond the length rule.
    EXPECT_NO_THROW(Make(With(kStraight, &Saw::straight, -50)));
}

/// The blade's one contour; its solid is centred on the rake plane with the blade's thickness.
cadcam::tq2dContour<double> BladeContour(const tqChainSawTool& saw) {
    return tqtest::TurningPlaneContour(*saw.GetCuttingPart(), -saw.GetBladeThickness() / 2, saw.GetBladeThickness());
}

TEST(tqChainSawTool, TheBladeIsItsRoundedOutlineWithTheTipOnZero) {
    const cadcam::tq2dContour<double> simple = BladeContour(Make(kSimple));
    const cadcam::tq2dContourProperties<double> items(simple);
    const cadcam::tqPoint2d ends[] = {{-3, 0}, {3, 0}, {5, 2}, {5, 60}, {3, 100}, {-3, 100}, {-5, 60}, {-5, 2}};
    ASSERT_EQ(items.GetCount(), 8u);
    for (std::size_t i = 0; i < 8; ++i) EXPECT_LT(items.GetEnd(i).DistanceTo(ends[i]), 1e-12) << i;
    EXPECT_EQ(items.GetArc(0)->GetCentre(), cadcam::tqPoint2d(-3, 2));
    EXPECT_NEAR(items.GetArc(2)->GetCentre().x, 3, 1e-12);
    // A full radius tip is two quarter arcs meeting at the origin, with no tip edge between them.
    Saw full = kStraight;
    full.radiusType = tqChainSawTool::SCRT_FULL;
    const cadcam::tq2dContourProperties<double> tip(BladeContour(Make(full)));
    ASSERT_NE(tip.GetArc(0), nullptr);
    ASSERT_NE(tip.GetArc(1), nullptr);
    EXPECT_NEAR(tip.GetArc(0)->GetRadius(), 5, 1e-12);
    EXPECT_LT(tip.GetEnd(0).Length(), 1e-12);
    // A change of units builds the blade again from the scaled sizes.
    tqChainSawTool inch = Make(kSimple);
    inch.SetUnits(kInch);
    const tqChainSawTool fresh(kInch, inch.GetArbor(), inch.GetHolder(), inch.GetCornerRadius(),
                               inch.GetCornerRadiusType(), inch.GetChainSawType(), inch.GetBladeWidth(),
                               inch.GetBladeThickness(), inch.GetBladeLength(), inch.GetStraightBladeLength(),
                               inch.GetBladeUpperWidth());
    EXPECT_TRUE(inch.GetCuttingPart()->IsEqual(*fresh.GetCuttingPart()));
}

}  // namespace
}  // namespace othertest
