// tqTriangleTurningTool: the rules of the regular polygon inserts.
#include "cadcam/tools/turning/tqtriangleturningtool.h"

#include "regularinsert_test.h"

namespace turningtest {

INSTANTIATE_TYPED_TEST_SUITE_P(Triangle, RegularInsert, cadcam::tqTriangleTurningTool);

}  // namespace turningtest
