// tqGrooveTurningTool: the rules of each type at their boundaries, and their order.
#include "cadcam/tools/turning/tqgrooveturningtool.h"

#include <cmath>
#include <limits>

#include "tools/shape/profiletoolkit.h"
#include "turningtestsupport.h"

namespace turningtest {
namespace {

using cadcam::tqGrooveTurningTool;
using Type = tqGrooveTurningTool::GroovingTurningToolType;
using cadcam::shape::SinDegrees;
using cadcam::shape::TanDegrees;

struct Groove {
    Type type;
    double r, a, b, c, d, e;
};

tqGrooveTurningTool Make(const Groove& g) {
    return tqGrooveTurningTool(kMetric, Arbor(), Holder(8), 4, g.type, g.r, g.a, g.b, g.c, g.d, g.e);
}

/// A valid insert of each type.
const Groove kA{tqGrooveTurningTool::TYPE_A, 0.2, 20, 3, 5, 6, 10};
const Groove kB{tqGrooveTurningTool::TYPE_B, 0.2, 20, 3, 5, 6, 10};
const Groove kC{tqGrooveTurningTool::TYPE_C, 0.2, 20, 8, 5, 3, 45};
const Groove kD{tqGrooveTurningTool::TYPE_D, 1.5, 20, 3, 5, 6, 10};
const Groove kE{tqGrooveTurningTool::TYPE_E, 0.2, 20, 3, 5, 6, 30};

const char* const kCornerText = "Invalid tool corner radius with given parameters.";

Groove With(Groove g, double Groove::*field, double value) {
    g.*field = value;
    return g;
}

TEST(tqGrooveTurningTool, CommonRulesRunInOrder) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (int type : {-1, 5}) {
        EXPECT_THROW_CODE(Make({static_cast<Type>(type), 0, 0, 0, 0, 0, 0}), E, 2276,
                          "Invalid Groove turning tool type.");
    }
    const Groove broken{tqGrooveTurningTool::TYPE_A, 0, 0, 0, 0, 0, 0};
    EXPECT_THROW_CODE(Make(broken), E, 2342, "Corner radius must be greater than 0.");
    EXPECT_THROW_CODE(Make(With(kA, &Groove::r, nan)), E, 2342, "Corner radius must be greater than 0.");
    for (double Groove::*length : {&Groove::a, &Groove::b, &Groove::c, &Groove::d}) {
        EXPECT_THROW_CODE(Make(With(With(broken, &Groove::r, 0.2), length, 1)), E, 2260,
                          "Parameter must be greater than 0.");
        EXPECT_THROW_CODE(Make(With(kA, length, nan)), E, 2260, "Parameter must be greater than 0.");
    }
    for (double angle : {0.0, 90.0, nan}) {
        EXPECT_THROW_CODE(Make(With(With(kA, &Groove::e, angle), &Groove::a, 1)), E, 2061,
                          "Angle E must be between 0 and 90 degrees.");
    }
    // A below the blade and shoulder and the body narrower than the tip: the length decides first.
    EXPECT_THROW_CODE(Make(With(With(kA, &Groove::a, 1), &Groove::d, 1)), E, 2063,
                      "Parameter A must be greater than C.");
    // The width rule comes before the corner rule.
    EXPECT_THROW_CODE(Make(With(With(kA, &Groove::d, 2), &Groove::r, 9)), E, 2262,
                      "Parameter D must be greater or equal to B.");
    ExpectFamilyRulesFirst([](const HolderPointer& holder, double thickness) {
        tqGrooveTurningTool(kMetric, Arbor(), holder, thickness, static_cast<Type>(9), 0, 0, 0, 0, 0, 0);
    });
    using G = tqGrooveTurningTool;
    ExpectScaledByUnits<G>(Make(kC), {&G::GetCornerRadius, &G::GetA, &G::GetB, &G::GetC, &G::GetD}, {&G::GetE});
}

TEST(tqGrooveTurningTool, TheLengthHoldsBladeAndShoulderOfEachType) {
    // h: both shoulders rise by (D − B)/2·tan E, type B's one shoulder by (D − B)·tan E, none for C and E.
    const double hA = (6.0 - 3.0) / 2 * TanDegrees(10), hB = (6.0 - 3.0) * TanDegrees(10);
    const struct {
        Groove g;
        double boundary;
    } cases[] = {{kA, 5 + hA}, {kB, 5 + hB}, {kC, 5}, {kD, 5 + hA}, {kE, 5}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.g.type);
        EXPECT_THROW_CODE(Make(With(c.g, &Groove::a, c.boundary)), E, 2063, "Parameter A must be greater than C.");
        EXPECT_NO_THROW(Make(With(c.g, &Groove::a, std::nextafter(c.boundary, 100.0))));
    }
}

TEST(tqGrooveTurningTool, EachTypeHasItsWidthRule) {
    for (const Groove& g : {kA, kD}) {
        EXPECT_THROW_CODE(Make(With(g, &Groove::d, std::nextafter(3.0, 0.0))), E, 2262,
                          "Parameter D must be greater or equal to B.");
        EXPECT_NO_THROW(Make(With(g, &Groove::d, 3)));
    }
    for (const Groove& g : {kB, kE}) {
        EXPECT_THROW_CODE(Make(With(g, &Groove::d, 3)), E, 2261, "Parameter D must be greater than B.");
        EXPECT_NO_THROW(Make(With(g, &Groove::d, std::nextafter(3.0, 9.0))));
    }
    EXPECT_THROW_CODE(Make(With(kC, &Groove::d, 8)), E, 2277, "Parameter B must be greater than D.");
    EXPECT_NO_THROW(Make(With(With(kC, &Groove::d, std::nextafter(8.0, 0.0)), &Groove::r, 0.01)));
}

TEST(tqGrooveTurningTool, TheCornerRadiusFitsTheBladeOfEachType) {
    // A and B: below half the tip width and not above the cutting depth.
    for (const Groove& g : {kA, kB}) {
        SCOPED_TRACE(g.type);
        EXPECT_THROW_CODE(Make(With(g, &Groove::r, 1.5)), E, 2278, kCornerText);
        EXPECT_NO_THROW(Make(With(g, &Groove::r, std::nextafter(1.5, 0.0))));
        const Groove shallow = With(g, &Groove::c, 1);
        EXPECT_NO_THROW(Make(With(shallow, &Groove::r, 1)));
        EXPECT_THROW_CODE(Make(With(shallow, &Groove::r, std::nextafter(1.0, 2.0))), E, 2278, kCornerText);
    }
    // C: the relief starts at t = C − ((B − D)/2)/tan E, which must leave room for the corner.
    const double t = 5 - (8.0 - 3.0) / 2 / TanDegrees(45);
    EXPECT_NO_THROW(Make(With(kC, &Groove::r, t)));
    EXPECT_THROW_CODE(Make(With(kC, &Groove::r, std::nextafter(t, 9.0))), E, 2278, kCornerText);
    const Groove deep = With(kC, &Groove::c, 10);
    EXPECT_THROW_CODE(Make(With(deep, &Groove::r, 4)), E, 2278, kCornerText);
    EXPECT_NO_THROW(Make(With(deep, &Groove::r, std::nextafter(4.0, 0.0))));
    // D: a full radius tip, B/2 within ε = 1e-9·A = 2e-8.
    for (double r : {1.5 + 1.5e-8, 1.5 - 1.5e-8}) EXPECT_NO_THROW(Make(With(kD, &Groove::r, r)));
    for (double r : {1.5 + 3e-8, 1.5 - 3e-8}) EXPECT_THROW_CODE(Make(With(kD, &Groove::r, r)), E, 2278, kCornerText);
    EXPECT_THROW_CODE(Make(With(kD, &Groove::c, std::nextafter(1.5, 0.0))), E, 2278, kCornerText);
    // E: the V tip reaches its full width below the cutting depth, and the corner fits between the flanks.
    const double hv = 1.5 / TanDegrees(30);
    EXPECT_NO_THROW(Make(With(kE, &Groove::c, hv)));
    EXPECT_THROW_CODE(Make(With(kE, &Groove::c, std::nextafter(hv, 0.0))), E, 2278, kCornerText);
    const double largest = 1.5 / SinDegrees(30) * TanDegrees(30);
    EXPECT_NO_THROW(Make(With(kE, &Groove::r, largest * (1 - 1e-12))));
    EXPECT_THROW_CODE(Make(With(kE, &Groove::r, largest * (1 + 1e-12))), E, 2278, kCornerText);
}

}  // namespace
}  // namespace turningtest
