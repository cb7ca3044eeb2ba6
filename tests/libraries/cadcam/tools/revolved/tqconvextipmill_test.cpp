// tqConvexTipMill: each rule at its boundary.
#include "cadcam/tools/revolved/tqconvextipmill.h"

#include "revolvedtest.h"

namespace {

using cadcam::tqConvexTipMill;
using namespace revolvedtest;

struct P {
    double d = 10, lf = 10, ls = 20, rc = 1, rt = 8, rf = 1;
};
tqConvexTipMill Make(const P& p) { return tqConvexTipMill(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc, p.rt, p.rf); }

TEST(tqConvexTipMill, EachRuleFiresAtItsBoundaryInOrder) {
    const char* tip = "Convex tip radius should be >= half tool diameter";
    const char* flat = "Tool radius minus corner radius must be greater than flatness radius for convex tip mill tool";
    ExpectRules<P>({{[](P& p) { p.rc = -1e-300, p.rf = -1; }, 2163, "Invalid corner radius, it must be >= 0."},
                    {[](P& p) { p.rf = -1e-300, p.rt = 0; }, 2235, "Flatness radius for convex tip mill must be >= 0"},
                    {[](P& p) { p.rf = 4, p.rt = 0; }, 2234, flat},
                    {[](P& p) { p.rc = kInf; }, 2234, flat},
                    {[](P& p) { p.rt = Down(5); }, 2422, tip},
                    {[](P& p) { p.rt = kInf; }, 2422, tip},
                    {[](P& p) { p.rt = kNaN; }, 2422, tip}},
                   // A hemisphere (Rt = R without flat or fillet), flutes that end inside the tip, a flat up to R − rc.
                   {[](P& p) { p.rt = 5; }, [](P& p) { p.rt = 5, p.rc = p.rf = 0; }, [](P& p) { p.lf = 0.5; },
                    [](P& p) { p.rf = Down(4); }},
                   Make);
}

}  // namespace
