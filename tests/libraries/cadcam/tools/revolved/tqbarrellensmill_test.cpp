// tqBarrelLensMill: each rule at its boundary.
#include "cadcam/tools/revolved/tqbarrellensmill.h"

#include "revolvedtest.h"

namespace {

using cadcam::tqBarrelLensMill;
using namespace revolvedtest;

struct P {
    double d = 10, lf = 10, ls = 20, rc = 1, rt = 8;
};
tqBarrelLensMill Make(const P& p) { return tqBarrelLensMill(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc, p.rt); }

TEST(tqBarrelLensMill, EachRuleFiresAtItsBoundaryInOrder) {
    ExpectRules<P>(
        {{[](P& p) { p.rc = -1e-300, p.rt = 0; }, 2163, "Invalid corner radius, it must be >= 0."},
         {[](P& p) { p.rt = Down(5), p.rc = 5; }, 3431, "cadcam error 3431."},
         {[](P& p) { p.rt = kInf; }, 3431, "cadcam error 3431."},
         {[](P& p) { p.rc = 5; }, 3432, "cadcam error 3432."}},
        {[](P& p) { p.rt = 5; }, [](P& p) { p.rc = Down(5); }, [](P& p) { p.rc = 0; }, [](P& p) { p.lf = 0.5; }}, Make);
}

}  // namespace
