// tqSquareTurningTool: the rules of the regular polygon inserts.
#include "cadcam/tools/turning/tqsquareturningtool.h"

#include "regularinsert_test.h"

namespace turningtest {

INSTANTIATE_TYPED_TEST_SUITE_P(Square, RegularInsert, cadcam::tqSquareTurningTool);

}  // namespace turningtest
