// tqBarrelDProfMill: every rule at its boundary.
#include "cadcam/tools/barrel/tqbarreldprofmill.h"

#include "barreltest.h"

namespace {

using namespace barreltest;
using Mill = cadcam::tqBarrelDProfMill;

struct Params {
    double d = 10, lf = 15, ls = 30, ru = 20, rbl = 1, rlo = 8;
};

TEST(tqBarrelDProfMill, EachRuleFiresAtItsBoundary) {
    // With the blend radius 3 the widest point lies at the height 3 + sqrt(5² − 3²) = 7.
    ExpectCases<Params>(
        Params(),
        {{"lower profile radius before the blend radius", [](Params& p) { p.rlo = 4, p.rbl = -1; }, 3439},
         {"lower profile radius just below the tool radius", [](Params& p) { p.rlo = Down(5); }, 3439},
         {"lower profile radius = tool radius", [](Params& p) { p.rlo = 5; }, 0},
         {"infinite lower profile radius", [](Params& p) { p.rlo = HUGE_VAL; }, 3440},
         {"negative blend radius", [](Params& p) { p.rbl = -1e-300; }, 3441},
         {"no blend", [](Params& p) { p.rbl = 0; }, 0},
         {"blend as wide as the tool", [](Params& p) { p.rbl = 5; }, 3441},
         {"blend just narrower", [](Params& p) { p.rbl = Down(5); }, 0},
         {"upper profile radius 0", [](Params& p) { p.ru = 0; }, 3440},
         {"widest point at the flute length", [](Params& p) { p.rbl = 3, p.lf = 7; }, 0},
         {"widest point above the flutes", [](Params& p) { p.rbl = 3, p.lf = Down(7); }, 3440},
         {"upper arc reaches its quarter", [](Params& p) { p.rbl = 3, p.lf = 10, p.ru = 3; }, 3440},
         {"upper arc just longer", [](Params& p) { p.rbl = 3, p.lf = 10, p.ru = Up(3); }, 0},
         // Ru = 25 rises 15 above the widest point exactly to the axis: 5 − 25 + sqrt(25² − 15²) = 0.
         {"upper arc ends on the axis", [](Params& p) { p.rbl = 3, p.lf = 22, p.ru = 25; }, 0},
         {"upper arc crosses the axis", [](Params& p) { p.rbl = 3, p.lf = Up(22), p.ru = 25; }, 3440}},
        [](const Params& p) { Mill(measures::tqUnitsFactory::Metric, {}, {}, p.d, p.lf, p.ls, p.ru, p.rbl, p.rlo); });
}

}  // namespace
