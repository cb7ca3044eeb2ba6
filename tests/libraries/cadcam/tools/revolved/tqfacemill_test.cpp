// tqFaceMill: each rule at its boundary, 2123 in each of its forms.
#include "cadcam/tools/revolved/tqfacemill.h"

#include "revolvedtest.h"
#include "tools/shape/profiletoolkit.h"

namespace {

using cadcam::tqFaceMill;
using namespace revolvedtest;

struct P {
    double d = 10, lf = 10, ls = 30, rc = 1;
    int crt = tqFaceMill::CRT_CORNER;
    double od = 14, angle = 45;
};
tqFaceMill Make(const P& p) {
    return tqFaceMill(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc, static_cast<tqFaceMill::CornerRadiusType>(p.crt), p.od,
                      p.angle);
}
// The lead face from (5, 0) to (7, 2) is shorter than the bottom; the corner turns by 45°.
const double kFullRadius = std::hypot(2.0, 2 / cadcam::shape::TanDegrees(45)) / cadcam::shape::TanDegrees(22.5);

TEST(tqFaceMill, EachRuleFiresAtItsBoundaryInOrder) {
    const char* none = "Taper and shoulder do not intersect each other.";
    ExpectRules<P>({{[](P& p) { p.crt = 3, p.rc = -1; }, 2109, "Unknown corner radius type"},
                    {[](P& p) { p.rc = -1e-300, p.angle = 0; }, 2163, "Invalid corner radius, it must be >= 0."},
                    {[](P& p) { p.angle = 89.0000000001, p.od = 1; }, 2122, "Taper angle must be >=0.1 and <=89."},
                    {[](P& p) { p.od = Down(10); }, 2123, none},
                    {[](P& p) { p.od = kNaN; }, 2123, none},
                    {[](P& p) { p.od = kInf; }, 2123, none},
                    // The lead face reaches OD/2 at h = (OD/2 − R)/tan α = Lf for OD = 30.
                    {[](P& p) { p.od = 30 * (1 + 1e-9); }, 2123, none},
                    {[](P& p) { p.rc = kFullRadius * (1 + 1e-9); }, 2123, none},
                    // Without a lead face the fillet meets the side: t = rc against R.
                    {[](P& p) { p.od = 10, p.rc = 5 * (1 + 1e-9); }, 2123, none}},
                   {[](P& p) { p.od = 30 * (1 - 1e-9); }, [](P& p) { p.rc = kFullRadius * (1 - 1e-9); },
                    [](P& p) { p.od = 10, p.rc = 5; }, [](P& p) { p.crt = tqFaceMill::CRT_FULL; },
                    [](P& p) { p.crt = tqFaceMill::CRT_NONE, p.rc = 100; }},
                   Make);
}

}  // namespace
