// tqBarrelTangentMillConicalShaft: the cone's rules at their boundaries (the rules it shares with
// tqBarrelTangentMill are tested there; its extender, based at the shoulder, in revolvedproperty_test.cpp).
#include "cadcam/tools/barrel/tqbarreltangentmillconicalshaft.h"

#include "barreltest.h"

namespace {

using namespace barreltest;
using Mill = cadcam::tqBarrelTangentMillConicalShaft;
constexpr auto kMetric = measures::tqUnitsFactory::Metric;

// The barrel's centre (−15, 35), radius 40; at 30° the cone leaves it at (−15 + 40·cos 30°, 55).
struct Params {
    double d = 50, lf = 80, ls = 100, alpha = 30, rp = 40, rl = 15, lc = 10;
};

Mill Make(const Params& p) { return Mill(kMetric, {}, {}, p.d, p.lf, p.ls, p.alpha, p.rp, p.rl, p.lc); }

TEST(tqBarrelTangentMillConicalShaft, EachRuleFiresAtItsBoundary) {
    ExpectCases<Params>(Params(),
                        {{"shared rules come first", [](Params& p) { p.rp = 25, p.alpha = 0; }, 2284},
                         {"widest point above the flutes", [](Params& p) { p.lf = Down(35), p.alpha = 0; }, 2297},
                         {"no taper", [](Params& p) { p.alpha = 0; }, 2299},
                         {"cone along the axis' normal", [](Params& p) { p.alpha = 90; }, 2299},
                         {"negative cone length", [](Params& p) { p.lc = -1e-300; }, 2299},
                         {"no cone", [](Params& p) { p.lc = 0; }, 0},
                         // The cone ends at the height 65.
                         {"cone ends just below the flute length", [](Params& p) { p.lf = 65 * (1 + 1e-12); }, 0},
                         {"cone ends just above the flute length", [](Params& p) { p.lf = 65 * (1 - 1e-12); }, 2298},
                         // 34.0 leaves the cone's end at x ≈ 0.01, 34.1 takes it past the axis.
                         {"cone ends right of the axis", [](Params& p) { p.lc = 34, p.lf = 90; }, 0},
                         {"cone crosses the axis", [](Params& p) { p.lc = 34.1, p.lf = 90; }, 2298}},
                        Make);
}

}  // namespace
