// tqBarrelTaperMill: every rule at its boundary, the cone within the diameter.
#include "cadcam/tools/barrel/tqbarreltapermill.h"

#include <cmath>

#include "barreltest.h"

namespace {

using namespace barreltest;
using Mill = cadcam::tqBarrelTaperMill;

// The barrel's centre (−1, sqrt(27)), radius 6, through (2, 0); the neck leaves it at (3, sqrt(27) + sqrt(20)).
struct Params {
    double d = 10, lf = 20, ls = 40, du = 6, alpha = 5, rl = 0.5, rp = 6, ru = 1, dfl = 4;
};

Mill Make(const Params& p) {
    return Mill(measures::tqUnitsFactory::Metric, {}, {}, p.d, p.lf, p.ls, p.du, p.alpha, p.rl, p.rp, p.ru, p.dfl);
}
/// The height at which the cone from the neck reaches the radius 5.
double Reach() { return std::sqrt(27.0) + std::sqrt(20.0) + 2 / std::tan(5 * std::acos(-1.0) / 180); }

TEST(tqBarrelTaperMill, EachRuleFiresAtItsBoundary) {
    ExpectCases<Params>(
        Params(),
        {{"upper diameter 0, before 2122", [](Params& p) { p.du = 0, p.alpha = 0; }, 2309},
         {"upper diameter NaN", [](Params& p) { p.du = NAN; }, 2309},
         {"taper angle 0.05", [](Params& p) { p.alpha = 0.05; }, 2122},
         {"taper angle 0.1", [](Params& p) { p.alpha = 0.1; }, 0},
         {"taper angle 89: the cone leaves the diameter", [](Params& p) { p.alpha = 89; }, 3437},
         {"taper angle 89.5", [](Params& p) { p.alpha = 89.5; }, 2122},
         {"profile radius 0", [](Params& p) { p.rp = 0; }, 2166},
         {"negative flatness diameter", [](Params& p) { p.dfl = -1e-300; }, 2281},
         {"flatness diameter = D", [](Params& p) { p.dfl = 10; }, 2281},
         {"no flat", [](Params& p) { p.dfl = 0, p.rl = 0, p.rp = 5; }, 0},
         {"barrel rises from the flat's end", [](Params& p) { p.rp = 3; }, 0},
         {"barrel too small to reach the flat", [](Params& p) { p.rp = Down(3); }, 2284},
         {"negative lower radius", [](Params& p) { p.rl = -1e-300; }, 2296},
         {"negative upper radius", [](Params& p) { p.ru = -1e-300; }, 3433},
         {"upper diameter = D", [](Params& p) { p.du = 10; }, 2312},
         {"upper diameter just below: the blend passes the widest point", [](Params& p) { p.du = Down(10); }, 3437},
         // Rp = 5 and a flat of 6 put the barrel's centre at (0, 4): the lower radicand (5 − r)² − (r − 4)².
         {"lower radius = profile radius", [](Params& p) { p.rp = 5, p.dfl = 6, p.rl = 5; }, 2297},
         {"lower radicand 0", [](Params& p) { p.rp = 5, p.dfl = 6, p.rl = 4.5; }, 2298},
         {"lower radicand just below 0", [](Params& p) { p.rp = 5, p.dfl = 6, p.rl = Up(4.5); }, 2297},
         {"lower radius up to the widest point", [](Params& p) { p.rp = 5, p.dfl = 6, p.rl = 4; }, 0},
         {"lower radius past the widest point", [](Params& p) { p.rp = 5, p.dfl = 6, p.rl = Up(4); }, 2298},
         // Rp = 2 and a flat of 8 put the barrel's centre at x = 3: a neck of diameter 6 leaves its top.
         {"neck at the barrel's centre", [](Params& p) { p.rp = 2, p.dfl = 8, p.rl = 0, p.ru = 0, p.lf = 10; }, 0},
         {"neck just left of the barrel's centre",
          [](Params& p) { p.rp = 2, p.dfl = 8, p.rl = 0, p.ru = 0, p.lf = 10, p.du = Down(6); }, 3435},
         {"neck blend ends above the flutes", [](Params& p) { p.lf = std::sqrt(27.0) + std::sqrt(20.0) + 0.1; }, 3437},
         {"neck close to the widest point", [](Params& p) { p.du = 9.8, p.alpha = 0.1; }, 0},
         {"cone ends within the diameter", [](Params& p) { p.lf = Reach() * (1 - 1e-9); }, 0},
         {"cone leaves the diameter", [](Params& p) { p.lf = Reach() * (1 + 1e-9); }, 3437}},
        Make);
}

}  // namespace
