// tqTapLH: the lead, its corner and the threads count, each rule at its boundary.
#include "cadcam/tools/revolved/tqtaplh.h"

#include "taptests.h"

namespace {

TEST(tqTapLH, RulesFireAtTheirBoundariesInOrderAndTheFullCornerFitsWheneverTheLeadDoes) {
    taptest::ExpectTapRules<cadcam::tqTapLH>();
}

}  // namespace
