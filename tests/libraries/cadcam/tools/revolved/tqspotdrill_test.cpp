// tqSpotDrill: the tip angle, its rule and the point within the flutes, each at its boundary.
#include "cadcam/tools/revolved/tqspotdrill.h"

#include "revolvedtest.h"
#include "tools/shape/profiletoolkit.h"

namespace {

using cadcam::tqSpotDrill;
using cadcam::shape::ConeHeight;
using namespace revolvedtest;

struct P {
    double d = 10, lf = 20, ls = 30, angle = 118;
};
tqSpotDrill Make(const P& p) { return tqSpotDrill(kMetric, {}, {}, p.d, p.lf, p.ls, p.angle); }

const char* const kAngle = "Tip angle must be >=1 and <=180.";
const char* const kTip = "Tip and shoulder do not intersect each other.";

TEST(tqSpotDrill, RulesFireAtTheirBoundariesInOrder) {
    ExpectRules<P>({{[](P& p) { p.angle = Down(1); }, 2113, kAngle},
                    {[](P& p) { p.angle = Up(180); }, 2113, kAngle},
                    {[](P& p) { p.angle = kNaN; }, 2113, kAngle},
                    {[](P& p) { p.angle = 90, p.lf = Down(ConeHeight(5, 45)); }, 2112, kTip},
                    // The first broken rule decides.
                    {[](P& p) { p.angle = 0.5, p.lf = 1e-9; }, 2113, kAngle},
                    {[](P& p) { p.d = kInf, p.angle = 0; }, 2105, "Invalid tool diameter"}},
                   {[](P& p) { p.angle = 180, p.lf = 1e-7, p.ls = 1; }, [](P& p) { p.angle = 1, p.lf = p.ls = 1e3; },
                    [](P& p) { p.angle = 90, p.lf = ConeHeight(5, 45); }},
                   Make);
}

}  // namespace
