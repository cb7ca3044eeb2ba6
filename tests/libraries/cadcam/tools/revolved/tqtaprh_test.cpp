// tqTapRH: the lead, its corner and the threads count, each rule at its boundary.
#include "cadcam/tools/revolved/tqtaprh.h"

#include "taptests.h"

namespace {

using cadcam::tqTapRH;

TEST(tqTapRH, BuildsReadsBackAndScalesTheCornerRadius) {
    taptest::ExpectBuildsReadsBackAndScalesTheCornerRadius<tqTapRH>();
}

TEST(tqTapRH, RulesFireAtTheirBoundariesInOrder) { taptest::ExpectRulesAtTheirBoundariesInOrder<tqTapRH>(); }

TEST(tqTapRH, FullCornerFitsWheneverTheLeadDoes) { taptest::ExpectTheFullCornerToFitWheneverTheLeadDoes<tqTapRH>(); }

}  // namespace
