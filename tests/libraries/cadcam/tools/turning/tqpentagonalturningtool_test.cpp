// tqPentagonalTurningTool: the rules of the regular polygon inserts.
#include "cadcam/tools/turning/tqpentagonalturningtool.h"

#include "regularinsert_test.h"

namespace turningtest {

INSTANTIATE_TYPED_TEST_SUITE_P(Pentagonal, RegularInsert, cadcam::tqPentagonalTurningTool);

}  // namespace turningtest
