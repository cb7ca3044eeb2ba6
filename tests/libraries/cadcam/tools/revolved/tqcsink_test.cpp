// tqCSink: flat tip, cone and rounded cone-side corner, each rule at its boundary.
#include "cadcam/tools/revolved/tqcsink.h"

#include "revolvedtest.h"
#include "tools/shape/profiletoolkit.h"

namespace {

using cadcam::tqCSink;
using cadcam::shape::ConeHeight;
using cadcam::shape::TanDegrees;
using namespace revolvedtest;

struct P {
    double d = 10, lf = 20, ls = 30, rc = 1;
    int crt = tqCSink::CRT_CORNER;
    double angle = 90, db = 2;
};
tqCSink Make(const P& p) {
    return tqCSink(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc, static_cast<tqCSink::CornerRadiusType>(p.crt), p.angle,
                   p.db);
}
/// The cone's height in the default set: from the bottom radius 1 to the tool radius 5 at 45°.
double Cone() { return ConeHeight(4, 45); }

const char* const kCrt = "Unknown corner radius type";
const char* const kFull = "Unsupported corner radius type.";
const char* const kBottom = "Invalid tool diameter";
const char* const kAbove = "Bottom diameter must be less than or equal to Diameter.";
const char* const kNegative = "Invalid corner radius, it must be >= 0.";
const char* const kTwice = "Diameter must be at least twice the corner radius length.";
const char* const kAngle = "Tip angle must be >=1 and <=180.";
const char* const kTip = "Tip and shoulder do not intersect each other.";

TEST(tqCSink, RulesFireAtTheirBoundariesInOrder) {
    ExpectRules<P>(
        {{[](P& p) { p.crt = 3; }, 2109, kCrt},
         {[](P& p) { p.crt = -1; }, 2109, kCrt},
         {[](P& p) { p.crt = tqCSink::CRT_FULL; }, 3466, kFull},
         {[](P& p) { p.db = -kTiny; }, 2105, kBottom},
         {[](P& p) { p.db = kNaN; }, 2105, kBottom},
         {[](P& p) { p.db = Up(10); }, 3465, kAbove},
         {[](P& p) { p.db = kInf; }, 3465, kAbove},
         {[](P& p) { p.crt = tqCSink::CRT_NONE, p.rc = -kTiny; }, 2163, kNegative},
         {[](P& p) { p.rc = Up(5); }, 2117, kTwice},
         {[](P& p) { p.angle = Down(1); }, 2113, kAngle},
         {[](P& p) { p.angle = Up(180); }, 2113, kAngle},
         {[](P& p) { p.crt = tqCSink::CRT_NONE, p.lf = Down(Cone()); }, 2112, kTip},
         // A flat cone turns by 90° into the side: the tangent points lie rc·tan 45° from the corner.
         {[](P& p) { p.angle = 180, p.rc = 2, p.lf = Down(2 * TanDegrees(45)); }, 2112, kTip},
         {[](P& p) { p.angle = 180, p.rc = 4 / TanDegrees(45) * (1 + 1e-12); }, 2112, kTip},
         // The first broken rule decides.
         {[](P& p) { p.crt = 3, p.db = kNaN; }, 2109, kCrt},
         {[](P& p) { p.crt = tqCSink::CRT_FULL, p.db = -1; }, 3466, kFull},
         {[](P& p) { p.db = 11, p.rc = -1; }, 3465, kAbove},
         {[](P& p) { p.rc = 6, p.angle = 0; }, 2117, kTwice},
         {[](P& p) { p.angle = 0, p.lf = 1e-9; }, 2113, kAngle}},
        {[](P& p) { p.db = 0; }, [](P& p) { p.db = 10; }, [](P& p) { p.rc = 5; },
         [](P& p) { p.crt = tqCSink::CRT_NONE, p.rc = 100; }, [](P& p) { p.crt = tqCSink::CRT_NONE, p.lf = Cone(); },
         [](P& p) { p.angle = 180, p.rc = 2, p.lf = 2 * TanDegrees(45); },
         [](P& p) { p.angle = 180, p.rc = 4 / TanDegrees(45) * (1 - 1e-12); },
         [](P& p) { p.angle = 1, p.lf = 1e3, p.ls = 1e3; }},
        Make);
}

}  // namespace
