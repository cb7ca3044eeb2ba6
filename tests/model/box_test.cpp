// Box: default corners and exact equality.
#include "tqWorkRig/model/box.h"

#include <cmath>

#include "support/tqtest.h"

using cadcam::tqTPoint3d;
using tqWorkRig::Box;

TEST(Box, DefaultsToTheUnitCubeAndComparesCornersExactly) {
    const Box cube(u"stock"), a({5, 5, 5}, {0, 0, 0}, u"b");
    EXPECT_EQ(cube.GetLowerCorner(), tqTPoint3d<double>(-1, -1, -1));
    EXPECT_EQ(cube.GetUpperCorner(), tqTPoint3d<double>(1, 1, 1));
    Box b(a);
    EXPECT_TRUE(a == b);
    b.SetUpperCorner({0, 0, std::nextafter(0.0, 1.0)});
    EXPECT_TRUE(a != b);
    const Box nan({NAN, 0, 0}, {1, 1, 1}, u"b");
    EXPECT_TRUE(nan == nan);  // the same object
    EXPECT_FALSE(nan == Box(nan));
}
