// tqBarrelTangentMill: every rule at its boundary.
#include "cadcam/tools/barrel/tqbarreltangentmill.h"

#include "barreltest.h"

namespace {

using namespace barreltest;
using Mill = cadcam::tqBarrelTangentMill;

struct Params {
    double d = 10, lf = 20, ls = 40, du = 8, rp = 12, rl = 2;
};

Mill Make(const Params& p) { return Mill(measures::tqUnitsFactory::Metric, {}, {}, p.d, p.lf, p.ls, p.du, p.rp, p.rl); }

TEST(tqBarrelTangentMill, EachRuleFiresAtItsBoundary) {
    ExpectCases<Params>(Params(),
                        {{"profile radius 0, before 2296", [](Params& p) { p.rp = 0, p.rl = -1; }, 2166},
                         {"negative lower radius", [](Params& p) { p.rl = -1e-300; }, 2296},
                         {"no tip ball", [](Params& p) { p.rl = 0; }, 0},
                         {"tip ball as wide as the tool", [](Params& p) { p.rl = 5; }, 2281},
                         {"tip ball just narrower", [](Params& p) { p.rl = Down(5); }, 0},
                         {"profile radius below the tool radius", [](Params& p) { p.rp = Down(5); }, 2280},
                         {"profile radius = tool radius: a ball", [](Params& p) { p.rp = 5; }, 2284},
                         {"infinite profile radius", [](Params& p) { p.rp = HUGE_VAL; }, 2284}},
                        Make);
    // Whole numbers throughout: the barrel's centre (−15, 35), the ball's centre (0, 15) 25 inside it, and the
    // upper diameter 18 reached at the height 67.
    Params exact;
    exact.d = 50, exact.rp = 40, exact.rl = 15, exact.du = 18, exact.lf = 67, exact.ls = 100;
    ExpectCases<Params>(exact,
                        {{"widest point at the flute length", [](Params& p) { p.lf = 35; }, 2298},
                         {"widest point above the flutes", [](Params& p) { p.lf = Down(35); }, 2297},
                         {"upper diameter 0", [](Params& p) { p.du = 0; }, 2164},
                         {"upper diameter = D", [](Params& p) { p.du = 50; }, 0},
                         {"upper diameter above D", [](Params& p) { p.du = Up(50); }, 2164},
                         {"upper diameter reached at the flute length", [](Params&) {}, 0},
                         {"upper diameter reached above the flutes", [](Params& p) { p.lf = Down(67); }, 2298}},
                        Make);
}

}  // namespace
