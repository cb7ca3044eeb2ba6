// tqReamer: the entry chamfer's factor, each rule at its boundary.
#include "cadcam/tools/revolved/tqreamer.h"

#include "revolvedtest.h"

namespace {

using cadcam::tqReamer;
using namespace revolvedtest;

struct P {
    double d = 10, lf = 20, ls = 30, factor = 0.2;
};
tqReamer Make(const P& p) { return tqReamer(kMetric, {}, {}, p.d, p.lf, p.ls, p.factor); }

const char* const kFactor = "Factor must be within [0, 1] interval.";

TEST(tqReamer, RulesFireAtTheirBoundariesInOrder) {
    ExpectRules<P>(
        {{[](P& p) { p.factor = -kTiny; }, 3469, kFactor},
         {[](P& p) { p.factor = Up(1); }, 3469, kFactor},
         {[](P& p) { p.factor = kNaN; }, 3469, kFactor},
         // The chamfer of radial size factor·R must end within the flutes.
         {[](P& p) { p.factor = 1, p.lf = Down(5), p.ls = 5; }, 3470, "Invalid chamfer distance."},
         // The first broken rule decides.
         {[](P& p) { p.factor = 1.5, p.lf = 1; }, 3469, kFactor},
         {[](P& p) { p.lf = kNaN, p.factor = 2; }, 2103, "Invalid flute length"}},
        {[](P& p) { p.factor = 0; }, [](P& p) { p.factor = 1; }, [](P& p) { p.factor = 1, p.lf = 5, p.ls = 5; }}, Make);
}

}  // namespace
