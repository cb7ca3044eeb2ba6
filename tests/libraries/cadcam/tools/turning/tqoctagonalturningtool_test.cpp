// tqOctagonalTurningTool: the rules of the regular polygon inserts.
#include "cadcam/tools/turning/tqoctagonalturningtool.h"

#include "regularinsert_test.h"

namespace turningtest {

INSTANTIATE_TYPED_TEST_SUITE_P(Octagonal, RegularInsert, cadcam::tqOctagonalTurningTool);

}  // namespace turningtest
