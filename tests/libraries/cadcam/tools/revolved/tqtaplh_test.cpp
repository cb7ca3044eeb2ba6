// tqTapLH: the lead, its corner and the threads count, each rule at its boundary.
#include "cadcam/tools/revolved/tqtaplh.h"

#include "taptests.h"

namespace {

using cadcam::tqTapLH;

TEST(tqTapLH, BuildsReadsBackAndScalesTheCornerRadius) {
    taptest::ExpectBuildsReadsBackAndScalesTheCornerRadius<tqTapLH>();
}

TEST(tqTapLH, RulesFireAtTheirBoundariesInOrder) { taptest::ExpectRulesAtTheirBoundariesInOrder<tqTapLH>(); }

TEST(tqTapLH, FullCornerFitsWheneverTheLeadDoes) { taptest::ExpectTheFullCornerToFitWheneverTheLeadDoes<tqTapLH>(); }

}  // namespace
