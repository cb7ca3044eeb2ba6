// tqTPoint3d and tqTPoint2d: exact comparison, with no tolerance and NaN unequal to itself.
#include "cadcam/geometry/tqtpoint3d.h"

#include <cmath>
#include <limits>

#include "cadcam/geometry/tqtpoint2d.h"
#include "support/tqtest.h"

using cadcam::tqTPoint2d;
using cadcam::tqTPoint3d;

TEST(TqTPoint3d, OneUlpApartIsUnequalAndNanIsUnequalToItself) {
    using P3 = tqTPoint3d<double>;
    const double next = std::nextafter(0.1, 1.0);
    EXPECT_EQ(P3(0.1, 2, 3), P3(0.1, 2, 3));
    EXPECT_NE(P3(0.1, 2, 3), P3(next, 2, 3));
    EXPECT_NE(P3(1, 2, 0.1), P3(1, 2, next));
    const P3 nan(1, std::numeric_limits<double>::quiet_NaN(), 3);
    EXPECT_FALSE(nan == nan);
    EXPECT_TRUE(nan != nan);
    EXPECT_EQ(P3(0.0, 0, 0), P3(-0.0, 0, 0));  // signed zeros are equal numbers
}

TEST(TqTPoint2d, ComparesExactlyAndMeasuresDistances) {
    const tqTPoint2d<double> a(3, 4);
    EXPECT_NE(a, tqTPoint2d<double>(3, std::nextafter(4.0, 5.0)));
    EXPECT_FALSE(tqTPoint2d<double>(std::nan(""), 0) == tqTPoint2d<double>(std::nan(""), 0));
    EXPECT_EQ(a.Length(), 5.0);
    EXPECT_EQ(a.DistanceTo(tqTPoint2d<double>(0, 0)), 5.0);
    // Cross is positive when the second vector lies counterclockwise of the first.
    EXPECT_GT(tqTPoint2d<double>(1, 0).Cross(tqTPoint2d<double>(0, 1)), 0.0);
    EXPECT_EQ(tqTPoint2d<float>(a), tqTPoint2d<float>(3.0f, 4.0f));
}
