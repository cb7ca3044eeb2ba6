// tqTapRH: the lead, its corner and the threads count, each rule at its boundary.
#include "cadcam/tools/revolved/tqtaprh.h"

#include "taptests.h"

namespace {

TEST(tqTapRH, RulesFireAtTheirBoundariesInOrderAndTheFullCornerFitsWheneverTheLeadDoes) {
    taptest::ExpectTapRules<cadcam::tqTapRH>();
}

}  // namespace
