// tqDrill: the tip angle, its rule and the point within the flutes, each at its boundary.
#include "cadcam/tools/revolved/tqdrill.h"

#include "profilecheck.h"
#include "revolvedtest.h"
#include "tools/shape/profiletoolkit.h"

namespace {

using cadcam::tqDrill;
using cadcam::shape::ConeHeight;
using namespace revolvedtest;

struct P {
    double d = 10, lf = 20, ls = 30, angle = 118;
};
tqDrill Make(const P& p) { return tqDrill(kMetric, {}, {}, p.d, p.lf, p.ls, p.angle); }

const char* const kAngle = "Tip angle must be >0 and <=180";
const char* const kTip = "Tip and shoulder do not intersect each other.";

TEST(tqDrill, RulesFireAtTheirBoundariesInOrder) {
    ExpectRules<P>(
        {{[](P& p) { p.angle = 0; }, 2228, kAngle},
         {[](P& p) { p.angle = Up(180); }, 2228, kAngle},
         {[](P& p) { p.angle = kNaN; }, 2228, kAngle},
         {[](P& p) { p.angle = 90, p.lf = Down(ConeHeight(5, 45)); }, 2112, kTip},
         // A point too sharp for any flute length.
         {[](P& p) { p.angle = kTiny; }, 2112, kTip},
         // The first broken rule decides.
         {[](P& p) { p.angle = 0, p.lf = 1e-9; }, 2228, kAngle},
         {[](P& p) { p.d = kInf, p.angle = 0; }, 2105, "Invalid tool diameter"}},
        {[](P& p) { p.angle = 180, p.lf = 1e-7, p.ls = 1; }, [](P& p) { p.angle = 1e-3, p.lf = 1e6, p.ls = 1e6; },
         [](P& p) { p.angle = 90, p.lf = ConeHeight(5, 45); }},
        Make);
}

TEST(tqDrill, BuildsThePointConeAndTheSide) {
    using namespace profilecheck;
    const auto cutting = [](Change<P> change) { return ProfileOf(*Make(With(P(), change)).GetCuttingPart()); };
    ExpectProfile(cutting([](P& p) { p.angle = 90; }), Point(0, 0), {L(5, 5), L(5, 20)}, 0);
    ExpectProfile(cutting([](P& p) { p.angle = 180; }), Point(0, 0), {L(5, 0), L(5, 20)}, 0);
    // The point reaching the top of the flutes leaves no side.
    ExpectProfile(cutting([](P& p) { p.angle = 90, p.lf = 5; }), Point(0, 0), {L(5, 5)}, 0);
    ExpectProfile(cutting([](P&) {}), Point(0, 0), {L(5, ConeHeight(5, 59)), L(5, 20)}, 0);
}

}  // namespace
