// tqHexagonalTurningTool: the rules of the regular polygon inserts.
#include "cadcam/tools/turning/tqhexagonalturningtool.h"

#include "regularinsert_test.h"

namespace turningtest {

INSTANTIATE_TYPED_TEST_SUITE_P(Hexagonal, RegularInsert, cadcam::tqHexagonalTurningTool);

}  // namespace turningtest
