// tqBarrelMill: every rule at its boundary, the common rules first, and the head's items.
#include "cadcam/tools/barrel/tqbarrelmill.h"

#include <cmath>

#include "barreltest.h"
#include "libraries/cadcam/tools/revolved/profilecheck.h"

namespace {

using namespace barreltest;
using Mill = cadcam::tqBarrelMill;

struct Params {
    double d = 10, lf = 20, ls = 40, du = 6, rc = 1, rp = 30;
};

Mill Make(const Params& p) { return Mill(measures::tqUnitsFactory::Metric, {}, {}, p.d, p.lf, p.ls, p.du, p.rc, p.rp); }

TEST(tqBarrelMill, EachRuleFiresAtItsBoundary) {
    ExpectCases<Params>(Params(),
                        {{"flute length 0", [](Params& p) { p.lf = 0; }, 2310},
                         {"shoulder at the flutes", [](Params& p) { p.ls = 20; }, 2311},
                         {"shoulder just above", [](Params& p) { p.ls = Up(20); }, 0},
                         {"upper diameter NaN, before 2309", [](Params& p) { p.du = NAN; }, 2164},
                         {"upper diameter 0", [](Params& p) { p.du = 0; }, 2309},
                         {"profile radius 0", [](Params& p) { p.rp = 0; }, 2166},
                         {"negative corner radius", [](Params& p) { p.rc = -1e-300; }, 2163},
                         {"corner radius = Rp", [](Params& p) { p.rc = 30; }, 2314},
                         {"common rules first", [](Params& p) { p.lf = 0, p.du = 0; }, 2310}},
                        Make);
    // D = 10 and Rp = 10 put the barrel's centre at x = −5; with Du = 2 it lies 8 below the flute length.
    Params exact;
    exact.rp = 10, exact.du = 2, exact.lf = 10, exact.rc = 0;
    ExpectCases<Params>(exact,
                        {{"upper diameter = D", [](Params& p) { p.du = 10, p.lf = 5; }, 0},
                         {"upper diameter above D", [](Params& p) { p.du = Up(10), p.lf = 5; }, 2312},
                         {"barrel reaches the upper diameter", [](Params& p) { p.rp = 4, p.lf = 6; }, 0},
                         {"barrel misses the upper diameter", [](Params& p) { p.rp = Down(4), p.lf = 6; }, 2313},
                         {"barrel centre at the tip", [](Params& p) { p.lf = 8; }, 0},
                         {"barrel centre below the tip", [](Params& p) { p.lf = Down(8); }, 2313},
                         {"barrel centre at Rp, fillet misses", [](Params& p) { p.lf = 18; }, 2315},
                         {"barrel centre above Rp", [](Params& p) { p.lf = Up(18); }, 2313},
                         // The fillet's radicand (Rp − rc)² − (rc − yb)² is 0 at rc = 6 and just below 0 above it.
                         {"fillet radicand 0", [](Params& p) { p.rc = 6; }, 2315},
                         {"fillet radicand just below 0", [](Params& p) { p.rc = Up(6); }, 2294},
                         {"fillet meets the widest point", [](Params& p) { p.rc = 2; }, 0},
                         {"fillet passes the widest point", [](Params& p) { p.rc = Up(2); }, 2315}},
                        Make);
    const Mill::tqShoulderDefinitionExtender below(measures::tqUnitsFactory::Metric, 12, Down(20));
    EXPECT_EQ(RaisedBy([&] { Mill(measures::tqUnitsFactory::Metric, {}, {}, 10, 20, 40, 0, 1, 30, below); }), 2187);
}

// A barrel centred on the axis (D = 2·Rp) at yb = 4, whose corner fillet and barrel meet at whole numbers.
TEST(tqBarrelMill, BuildsTheFilletAndTheBarrelSplitAtItsWidestPoint) {
    using namespace profilecheck;
    Params p;
    p.lf = 8, p.ls = 20, p.rc = 2.5, p.rp = 5;
    const double low = std::atan2(3.0, 4.0) * 180 / std::acos(-1.0);  // the angle of (4, 3), 36.87°
    ExpectProfile(Make(p).GetProfile(), Point(0, 0),
                  {L(2, 0), A(4, 1, 2, 2.5, 90 - low), A(5, 4, 0, 4, low), A(3, 8, 0, 4, 90 - low), L(5, 8), L(5, 20)},
                  0);
}

}  // namespace
