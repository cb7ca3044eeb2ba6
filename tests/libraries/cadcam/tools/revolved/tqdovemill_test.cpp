// tqDoveMill: each rule at its boundary, and the full corner.
#include "cadcam/tools/revolved/tqdovemill.h"

#include "profilecheck.h"
#include "revolvedtest.h"
#include "tools/shape/profiletoolkit.h"

namespace {

using cadcam::tqDoveMill;
using namespace revolvedtest;

struct P {
    double d = 10, lf = 5, ls = 30, rc = 1;
    int crt = tqDoveMill::CRT_CORNER;
    double angle = 10;
};
tqDoveMill Make(const P& p) {
    return tqDoveMill(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc, static_cast<tqDoveMill::CornerRadiusType>(p.crt),
                      p.angle);
}
// The fillet at the bottom corner turns by 90° + α: t = rc·tan(45° + α/2), here with α = 10.
const double kTanHalfTurn = cadcam::shape::TanDegrees(50);
const double kSide1 = 1 / cadcam::shape::CosDegrees(10);  // the side's length for Lf = 1

TEST(tqDoveMill, EachRuleFiresAtItsBoundaryInOrder) {
    const char* invalid = "Invalid tool definition";
    const char* angle = "Taper angle must be >=0.1 and <=89.";
    ExpectRules<P>(
        {{[](P& p) { p.crt = 3, p.rc = -1; }, 2109, "Unknown corner radius type"},
         {[](P& p) { p.rc = -1e-300, p.angle = 0; }, 2163, "Invalid corner radius, it must be >= 0."},
         {[](P& p) { p.angle = 0.0999999999, p.lf = p.ls = 100; }, 2122, angle},
         {[](P& p) { p.angle = 89.0000000001; }, 2122, angle},
         // The side reaches the axis at Lf·tan 45° = R.
         {[](P& p) { p.crt = 0, p.angle = 45, p.lf = 5 * (1 + 1e-9); }, 2141, invalid},
         // The fillet runs past the bottom (t > R), or past the side (t > Lf/cos α).
         {[](P& p) { p.rc = 5 / kTanHalfTurn * (1 + 1e-9); }, 2141, invalid},
         {[](P& p) { p.lf = 1, p.rc = kSide1 / kTanHalfTurn * (1 + 1e-9); }, 2141, invalid}},
        {[](P& p) { p.crt = 0, p.angle = 45, p.lf = 5 * (1 - 1e-9); },
         [](P& p) { p.rc = 5 / kTanHalfTurn * (1 - 1e-9); },
         [](P& p) { p.lf = 1, p.rc = kSide1 / kTanHalfTurn * (1 - 1e-9); },
         [](P& p) { p.crt = tqDoveMill::CRT_FULL, p.rc = 100; }, [](P& p) { p.crt = tqDoveMill::CRT_FULL, p.lf = 1; }},
        Make);
}

// The full radius consumes the whole bottom: the profile starts with the arc at exactly (0, 0).
TEST(tqDoveMill, AFullCornerStartsWithTheArcAtTheTip) {
    using namespace profilecheck;
    ExpectArcAtTheTip(ProfileOf(*Make(With(P(), [](P& p) { p.crt = tqDoveMill::CRT_FULL; })).GetCuttingPart()));
}

}  // namespace
