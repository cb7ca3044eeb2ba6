// tqBoreBar: each rule at its boundary, with 2024 before 3476.
#include "cadcam/tools/revolved/tqborebar.h"

#include "revolvedtest.h"
#include "tools/shape/profiletoolkit.h"

namespace {

using cadcam::tqBoreBar;
using namespace revolvedtest;

struct P {
    double d = 10, lf = 5, ls = 30, rc = 1;
    int crt = tqBoreBar::CRT_CORNER;
    double angle = 10;
};
tqBoreBar Make(const P& p) {
    return tqBoreBar(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc, static_cast<tqBoreBar::CornerRadiusType>(p.crt), p.angle);
}
const double kTanHalfTurn = cadcam::shape::TanDegrees(50);  // t = rc·tan(45° + α/2) at α = 10
const double kSide1 = 1 / cadcam::shape::CosDegrees(10);    // the side's length for Lf = 1

TEST(tqBoreBar, EachRuleFiresAtItsBoundaryInOrder) {
    const char* axis = "Tool profile intersects Y axis (due to Diameter, Taper Angle, Corner Radius, Flute Length)";
    ExpectRules<P>(
        {{[](P& p) { p.crt = 7; }, 2109, "Unknown corner radius type"},
         {[](P& p) { p.rc = -1; }, 2163, "Invalid corner radius, it must be >= 0."},
         {[](P& p) { p.angle = 0; }, 2122, "Taper angle must be >=0.1 and <=89."},
         {[](P& p) { p.crt = 0, p.angle = 45, p.lf = 5 * (1 + 1e-9); }, 2024, axis},
         {[](P& p) { p.rc = 5 / kTanHalfTurn * (1 + 1e-9); }, 2024, axis},
         {[](P& p) { p.lf = 1, p.rc = kSide1 / kTanHalfTurn * (1 + 1e-9); }, 3476, "cadcam error 3476."},
         // A fillet too big for both segments is reported against the bottom first.
         {[](P& p) { p.lf = 1, p.rc = 10; }, 2024, axis}},
        {[](P& p) { p.rc = 5 / kTanHalfTurn * (1 - 1e-9); },
         [](P& p) { p.lf = 1, p.rc = kSide1 / kTanHalfTurn * (1 - 1e-9); },
         [](P& p) { p.crt = tqBoreBar::CRT_FULL, p.lf = 1; }, [](P& p) { p.crt = tqBoreBar::CRT_NONE, p.rc = 100; }},
        Make);
}

}  // namespace
