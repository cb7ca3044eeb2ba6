// tqChamferMill: each rule at its boundary.
#include "cadcam/tools/revolved/tqchamfermill.h"

#include "revolvedtest.h"
#include "tools/shape/profiletoolkit.h"

namespace {

using cadcam::tqChamferMill;
using namespace revolvedtest;

struct P {
    double d = 2, lf = 10, ls = 20, rc = 0.2;
    int crt = tqChamferMill::CRT_CORNER;
    double angle = 45, od = 10;
};
tqChamferMill Make(const P& p) {
    return tqChamferMill(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc, static_cast<tqChamferMill::CornerRadiusType>(p.crt),
                         p.angle, p.od);
}
// The bottom (length 1) is shorter than the cone; the corner turns by 45°.
const double kFullRadius = 1 / cadcam::shape::TanDegrees(22.5);

TEST(tqChamferMill, EachRuleFiresAtItsBoundaryInOrder) {
    const char* positive = "Outside diameter must be > 0 ";
    ExpectRules<P>(
        {{[](P& p) { p.crt = -1, p.rc = -1; }, 2109, "Unknown corner radius type"},
         {[](P& p) { p.rc = kNaN, p.angle = 0; }, 2163, "Invalid corner radius, it must be >= 0."},
         {[](P& p) { p.angle = 0.0999999999, p.od = 0; }, 2122, "Taper angle must be >=0.1 and <=89."},
         {[](P& p) { p.od = 0; }, 2147, positive},
         {[](P& p) { p.od = kNaN; }, 2147, positive},
         {[](P& p) { p.od = -kInf; }, 2147, positive},
         {[](P& p) { p.od = kInf; }, 2155, "Invalid Outside Diameter"},
         {[](P& p) { p.od = Down(2); }, 2151, "Outside diameter must be >= tool diameter"},
         {[](P& p) { p.od = 2; }, 2251, "cadcam error 2251."},
         // The cone reaches OD/2 at h = (OD/2 − R)/tan α = Lf for OD = 22.
         {[](P& p) { p.od = 22 * (1 + 1e-9), p.ls = 10; }, 2123, "Taper and shoulder do not intersect each other."},
         {[](P& p) { p.ls = 10, p.rc = 100; }, 3423, "Invalid shaft length."},
         {[](P& p) { p.rc = kFullRadius * (1 + 1e-12); }, 2152, "Corner radius must be < full corner radius"}},
        {[](P& p) { p.od = 22 * (1 - 1e-9); }, [](P& p) { p.ls = Up(10); },
         [](P& p) { p.rc = kFullRadius * (1 - 1e-9); }, [](P& p) { p.crt = tqChamferMill::CRT_FULL, p.rc = 100; },
         [](P& p) { p.crt = tqChamferMill::CRT_NONE, p.rc = 100; }},
        Make);
}

}  // namespace
