// tqTPoint3d and tqTPoint2d: exact comparison, with no tolerance and NaN unequal to itself.
#include "cadcam/geometry/tqtpoint3d.h"

#include <cmath>
#include <limits>

#include "cadcam/geometry/tqtpoint2d.h"
#include "support/tqtest.h"

using cadcam::tqTPoint2d;
using cadcam::tqTPoint3d;

TEST(TqTPoint3d, OneUlpApartIsUnequalAndNanIsUnequalToItself) {
    const double x = 0.1;
    const double next = std::nextafter(x, 1.0);
    EXPECT_EQ(tqTPoint3d<double>(x, 2, 3), tqTPoint3d<double>(0.1, 2, 3));
    EXPECT_NE(tqTPoint3d<double>(x, 2, 3), tqTPoint3d<double>(next, 2, 3));
    EXPECT_NE(tqTPoint3d<double>(1, 2, x), tqTPoint3d<double>(1, 2, next));
    const tqTPoint3d<double> nan(1, std::numeric_limits<double>::quiet_NaN(), 3);
    EXPECT_FALSE(nan == nan);
    EXPECT_TRUE(nan != nan);
    // Signed zeros are equal numbers.
    EXPECT_EQ(tqTPoint3d<double>(0.0, 0, 0), tqTPoint3d<double>(-0.0, 0, 0));
}

TEST(TqTPoint2d, ComparesExactlyAndMeasuresDistances) {
    const tqTPoint2d<double> a(3, 4);
    EXPECT_NE(a, tqTPoint2d<double>(3, std::nextafter(4.0, 5.0)));
    const tqTPoint2d<double> nan(std::numeric_limits<double>::quiet_NaN(), 0);
    EXPECT_FALSE(nan == nan);
    EXPECT_EQ(a.Length(), 5.0);
    EXPECT_EQ(a.DistanceTo(tqTPoint2d<double>(0, 0)), 5.0);
    // Cross is positive when the second vector lies counterclockwise of the first.
    EXPECT_GT(tqTPoint2d<double>(1, 0).Cross(tqTPoint2d<double>(0, 1)), 0.0);
    EXPECT_EQ(tqTPoint2d<float>(a), tqTPoint2d<float>(3.0f, 4.0f));
}
