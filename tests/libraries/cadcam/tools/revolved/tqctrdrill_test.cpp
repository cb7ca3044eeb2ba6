// tqCtrDrill: pilot point, pilot and shoulder, each rule at its boundary.
#include "cadcam/tools/revolved/tqctrdrill.h"

#include "revolvedtest.h"
#include "tools/shape/profiletoolkit.h"

namespace {

using cadcam::tqCtrDrill;
using cadcam::shape::ConeHeight;
using namespace revolvedtest;

struct P {
    double d = 10, lf = 20, ls = 30, angle = 118, shoulder = 60, dc = 3, hc = 4;
};
tqCtrDrill Make(const P& p) { return tqCtrDrill(kMetric, {}, {}, p.d, p.lf, p.ls, p.angle, p.shoulder, p.dc, p.hc); }

const char* const kAngle = "Tip angle must be >=1 and <=180.";
const char* const kShoulder = "Shoulder angle must be >=1 and <=180.";
const char* const kCore = "cadcam error 2279.";
const char* const kTip = "Tip and shoulder do not intersect each other.";

TEST(tqCtrDrill, RulesFireAtTheirBoundariesInOrder) {
    ExpectRules<P>({{[](P& p) { p.angle = Down(1); }, 2113, kAngle},
                    {[](P& p) { p.angle = Up(180); }, 2113, kAngle},
                    {[](P& p) { p.angle = kNaN; }, 2113, kAngle},
                    {[](P& p) { p.shoulder = Down(1); }, 2114, kShoulder},
                    {[](P& p) { p.shoulder = Up(180); }, 2114, kShoulder},
                    {[](P& p) { p.shoulder = kNaN; }, 2114, kShoulder},
                    {[](P& p) { p.dc = 0; }, 2279, kCore},
                    {[](P& p) { p.dc = 10; }, 2279, kCore},
                    {[](P& p) { p.dc = kNaN; }, 2279, kCore},
                    // The pilot's point must end within the core height: 2/tan 45° here.
                    {[](P& p) { p.angle = 90, p.dc = 4, p.hc = Down(ConeHeight(2, 45)); }, 2279, kCore},
                    {[](P& p) { p.hc = kNaN; }, 2279, kCore},
                    {[](P& p) { p.shoulder = 180, p.hc = Up(20); }, 2112, kTip},
                    {[](P& p) { p.hc = kInf; }, 2112, kTip},
                    // The first broken rule decides.
                    {[](P& p) { p.angle = 0, p.shoulder = 0; }, 2113, kAngle},
                    {[](P& p) { p.shoulder = 0, p.dc = 0; }, 2114, kShoulder},
                    {[](P& p) { p.dc = 0, p.hc = 100; }, 2279, kCore}},
                   {[](P& p) { p.angle = 180, p.shoulder = 180, p.hc = 0; }, [](P& p) { p.dc = kTiny; },
                    [](P& p) { p.dc = Down(10); }, [](P& p) { p.angle = 90, p.dc = 4, p.hc = ConeHeight(2, 45); },
                    [](P& p) { p.shoulder = 180, p.hc = 20; },
                    [](P& p) { p.angle = 1, p.shoulder = 1, p.hc = 200, p.lf = 1000, p.ls = 1000; }},
                   Make);
}

}  // namespace
