// tqOpticDiamondTool: its rules in order, the flank height against the length, and the nose fit per radius type.
#include "cadcam/tools/other/tqopticdiamondtool.h"

#include <cmath>
#include <limits>
#include <stdexcept>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dcontourproperties.h"
#include "cadcam/tools/parts/tqcuttingpartdefinition.h"
#include "othertestsupport.h"
#include "tools/shape/profiletoolkit.h"

namespace othertest {
namespace {

using cadcam::tqOpticDiamondTool;

struct Optic {
    double radius, included;
    int clearanceType;
    double clearance, rake;
    int radiusType;
    double length, width, thickness;
};

tqOpticDiamondTool Make(const Optic& o) {
    return tqOpticDiamondTool(kMetric, Arbor(), Holder(), o.radius, o.included,
                              static_cast<tqOpticDiamondTool::ClearanceType>(o.clearanceType), o.clearance, o.rake,
                              static_cast<tqOpticDiamondTool::RadiusType>(o.radiusType), o.length, o.width,
                              o.thickness);
}

const Optic kFull{0.5, 60, tqOpticDiamondTool::CT_CONICAL, 7, 0, tqOpticDiamondTool::RT_FULL, 10, 4, 1};

Optic With(Optic o, double Optic::*field, double value) {
    o.*field = value;
    return o;
}
Optic Type(Optic o, int radiusType) {
    o.radiusType = radiusType;
    return o;
}

TEST(tqOpticDiamondTool, EachRuleFiresAtItsBoundaryInOrder) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const char* radiusText = "Radius must be greater than zero.";
    const char* includedText = "Included angle must be between zero and ninety degrees.";
    const char* rakeText = "Rake angle must be between negative ninety and ninety degrees.";
    const char* clearanceText = "Clearance angle must be between zero and ninety degrees.";
    const char* sizeText = "Length, width, and thickness must be greater than zero.";
    EXPECT_THROW_CODE(Make({0, 0, 2, 0, 90, 0, 0, 0, 0}), E, 2141, "Invalid tool definition");
    EXPECT_THROW_CODE(Make({0, 0, 0, 0, 90, 3, 0, 0, 0}), E, 2141, "Invalid tool definition");
    EXPECT_THROW_CODE(Make({0, 0, 0, 0, 90, 0, 0, 0, 0}), E, 3400, radiusText);
    EXPECT_THROW_CODE(Make(With(kFull, &Optic::radius, nan)), E, 3400, radiusText);
    for (double angle : {0.0, 90.0, nan}) {
        EXPECT_THROW_CODE(Make({1, angle, 0, 0, 90, 0, 0, 0, 0}), E, 3401, includedText);
        EXPECT_THROW_CODE(Make(With(kFull, &Optic::clearance, angle)), E, 3403, clearanceText);
    }
    for (double angle : {-90.0, 90.0, nan}) {
        EXPECT_THROW_CODE(Make({1, 60, 0, 0, angle, 0, 0, 0, 0}), E, 3402, rakeText);
    }
    EXPECT_THROW_CODE(Make({1, 60, 0, 0, 0, 0, 0, 0, 0}), E, 3403, clearanceText);
    for (double Optic::*size : {&Optic::length, &Optic::width, &Optic::thickness}) {
        EXPECT_THROW_CODE(Make(With(With(kFull, size, 0), &Optic::radius, 100)), E, 3404, sizeText);
    }
    EXPECT_NO_THROW(Make(With(kFull, &Optic::included, std::nextafter(90.0, 0.0))));
    EXPECT_NO_THROW(Make(With(kFull, &Optic::rake, std::nextafter(-90.0, 0.0))));
    EXPECT_NO_THROW(Make(With(kFull, &Optic::clearance, std::nextafter(0.0, 1.0))));
    // The flanks reach the full width at hw, below the length: (W/2)/tan(IA/2), one-sided (W/2)/tan IA.
    const double hwFull = 4.0 / 2 / cadcam::shape::TanDegrees(60.0 / 2);
    EXPECT_THROW_CODE(Make(With(kFull, &Optic::length, hwFull)), E, 3404, sizeText);
    EXPECT_NO_THROW(Make(With(kFull, &Optic::length, std::nextafter(hwFull, 10.0))));
    const double hwSide = 4.0 / 2 / cadcam::shape::TanDegrees(60.0);
    EXPECT_THROW_CODE(Make(Type(With(kFull, &Optic::length, hwSide), 1)), E, 3404, sizeText);
    EXPECT_NO_THROW(Make(Type(With(kFull, &Optic::length, std::nextafter(hwSide, 10.0)), 2)));
    using O = tqOpticDiamondTool;
    ExpectScaledByUnits<O>(Make({0.5, 60, 1, 7, -5, 2, 10, 4, 1}),
                           {&O::GetRadius, &O::GetLength, &O::GetWidth, &O::GetThickness},
                           {&O::GetIncludedAngle, &O::GetClearanceAngle, &O::GetRakeAngle});
}

TEST(tqOpticDiamondTool, TheNoseMustFitItsEdges) {
    const char* radiusText = "Radius must be greater than zero.";
    // Full: both flanks are 4 long and turn by 120°, so t = r·tan 60° <= 4.
    const double fullLimit = 4 / cadcam::shape::TanDegrees(60);
    EXPECT_NO_THROW(Make(With(kFull, &Optic::radius, fullLimit * (1 - 1e-12))));
    EXPECT_THROW_CODE(Make(With(kFull, &Optic::radius, fullLimit * (1 + 1e-12))), E, 3400, radiusText);
    // Left and right: the flank is (W/2)/sin 60° long, the axis side the whole length.
    const double sideLimit = 2 / cadcam::shape::SinDegrees(60) / cadcam::shape::TanDegrees(60);
    for (int type : {1, 2}) {
        EXPECT_NO_THROW(Make(Type(With(kFull, &Optic::radius, sideLimit * (1 - 1e-12)), type)));
        EXPECT_THROW_CODE(Make(Type(With(kFull, &Optic::radius, sideLimit * (1 + 1e-12)), type)), E, 3400, radiusText);
    }
}

/// The nose arc of the blade, whose solid lies in the turning plane over the tool's thickness.
cadcam::tq2dArc<double> Nose(const tqOpticDiamondTool& tool, std::size_t count) {
    const cadcam::tq2dContourProperties<double> items(
        tqtest::TurningPlaneContour(*tool.GetCuttingPart(), 0, tool.GetThickness()));
    EXPECT_EQ(items.GetCount(), count);
    if (items.GetArc(0) == nullptr) throw std::logic_error("no nose");
    return *items.GetArc(0);
}

TEST(tqOpticDiamondTool, TheNoseStandsOnTheOrigin) {
    // Full: the flanks meet at the included angle; the nose arc turns by 180° minus it.
    const cadcam::tq2dArc<double> full = Nose(Make(kFull), 6);
    EXPECT_EQ(full.GetCentre(), cadcam::tqPoint2d(0, 0.5));
    EXPECT_NEAR(full.GetSweep(), 120, 1e-9);
    EXPECT_NEAR(full.GetEnd().x, -full.GetStart().x, 1e-12);
    // Left: the flank meets the axis side, which the move to the centre (0, r) puts at u = r.
    const cadcam::tq2dArc<double> left = Nose(Make(Type(kFull, tqOpticDiamondTool::RT_LEFT)), 5);
    EXPECT_EQ(left.GetCentre(), cadcam::tqPoint2d(0, 0.5));
    EXPECT_NEAR(left.GetSweep(), 120, 1e-9);
    EXPECT_NEAR(left.GetEnd().x, 0.5, 1e-12);
    EXPECT_NEAR(left.GetEnd().y, 0.5, 1e-12);
    const cadcam::tq2dArc<double> right = Nose(Make(Type(kFull, tqOpticDiamondTool::RT_RIGHT)), 5);
    EXPECT_NEAR(right.GetStart().x, -0.5, 1e-12);
    tqOpticDiamondTool inch = Make(kFull);
    inch.SetUnits(kInch);
    EXPECT_EQ(Nose(inch, 6).GetCentre(), cadcam::tqPoint2d(0, inch.GetRadius()));
}

}  // namespace
}  // namespace othertest
