// Geometry: the colour channels as bytes and as truncated floats, and colour in equality.
#include "tqWorkRig/model/geometry.h"

#include <limits>
#include <utility>
#include <vector>

#include "support/tqtest.h"
#include "tqWorkRig/model/box.h"

using tqWorkRig::Box;
using tqWorkRig::Geometry;

TEST(Geometry, FloatChannelsTruncateAndWrapWithoutClamping) {
    Box box(u"b");
    EXPECT_EQ(box.Red(), 0);
    EXPECT_EQ(box.Alpha(), 255);
    // -0.5 gives -127, which keeps its low eight bits.
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const std::pair<float, int> cases[] = {{0.5f, 127}, {2.0f, 254}, {0.999f, 254}, {-0.5f, 129},
                                           {0.0f, 0},   {1.0f, 255}, {nan, 0}};
    for (const auto& c : cases) {
        for (auto set : {&Geometry::SetRed, &Geometry::SetGreen, &Geometry::SetBlue, &Geometry::SetAlpha})
            (box.*set)(c.first);
        EXPECT_EQ((std::vector<int>{box.Red(), box.Green(), box.Blue(), box.Alpha()}), std::vector<int>(4, c.second))
            << c.first;
        EXPECT_EQ(box.GetAlpha(), c.second / 255.0f);
    }
    // Every channel takes part in equality.
    Box red(u"b"), green(u"b"), blue(u"b"), alpha(u"b");
    red.Red(1);
    green.Green(1);
    blue.Blue(1);
    alpha.Alpha(254);
    for (const Box* other : {&red, &green, &blue, &alpha}) EXPECT_FALSE(Box(u"b") == *other);
}
