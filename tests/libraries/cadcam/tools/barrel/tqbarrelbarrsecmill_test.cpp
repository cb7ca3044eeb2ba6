// tqBarrelBarrSecMill: every rule at its boundary.
#include "cadcam/tools/barrel/tqbarrelbarrsecmill.h"

#include "barreltest.h"

namespace {

using namespace barreltest;
using Mill = cadcam::tqBarrelBarrSecMill;

// The barrel's centre (−3, 5), radius 8; the lower blend's radicand 7.5² − 4.5² = 6²; the upper blend of 2
// reaches the shaft line at 5 + sqrt(10² − 8²) = 11.
struct Params {
    double d = 10, lf = 20, ls = 40, dsh = 6, rub = 2, rp = 8, rlb = 0.5, hc = 5;
};

TEST(tqBarrelBarrSecMill, EachRuleFiresAtItsBoundary) {
    ExpectCases<Params>(
        Params(),
        {{"profile radius 0", [](Params& p) { p.rp = 0, p.hc = -1; }, 3449},
         {"negative centre height", [](Params& p) { p.hc = -1e-300; }, 3450},
         {"centre at the tip", [](Params& p) { p.hc = 0, p.rlb = 0; }, 0},
         {"centre height = profile radius", [](Params& p) { p.hc = 8; }, 2284},
         {"shaft diameter 0", [](Params& p) { p.dsh = 0; }, 3447},
         {"shaft as wide as the tool", [](Params& p) { p.dsh = 10; }, 3448},
         {"shaft just narrower", [](Params& p) { p.dsh = Down(10); }, 0},
         {"centre above the flutes", [](Params& p) { p.lf = Down(5); }, 3451},
         {"negative lower blend", [](Params& p) { p.rlb = -1e-300; }, 3452},
         {"negative upper blend", [](Params& p) { p.rub = -1e-300; }, 3453},
         // Rp = 3 puts the barrel's centre at x = 2, where a shaft of diameter 4 would stand.
         {"shaft at the barrel's centre", [](Params& p) { p.rp = 3, p.hc = 2, p.rlb = 0, p.dsh = 4; }, 3454},
         {"shaft just right of it", [](Params& p) { p.rp = 3, p.hc = 2, p.rlb = 0, p.dsh = Up(4); }, 0},
         {"lower blend = profile radius", [](Params& p) { p.rlb = 8; }, 3455},
         // The radicand (8 − r)² − (r − 5)² is 0 at r = 6.5.
         {"lower blend radicand 0", [](Params& p) { p.rlb = 6.5; }, 3456},
         {"lower blend radicand just below 0", [](Params& p) { p.rlb = Up(6.5); }, 3455},
         {"lower blend up to the widest point", [](Params& p) { p.rlb = 5; }, 0},
         {"lower blend past the widest point", [](Params& p) { p.rlb = Up(5); }, 3456},
         // An infinite blend leaves the upper radicand ∞ − ∞.
         {"infinite upper blend", [](Params& p) { p.rub = HUGE_VAL; }, 3457},
         {"upper blend ends at the flute length", [](Params& p) { p.lf = 11; }, 0},
         {"upper blend ends above the flutes", [](Params& p) { p.lf = Down(11); }, 3458}},
        [](const Params& p) {
            Mill(measures::tqUnitsFactory::Metric, {}, {}, p.d, p.lf, p.ls, p.dsh, p.rub, p.rp, p.rlb, p.hc);
        });
}

}  // namespace
