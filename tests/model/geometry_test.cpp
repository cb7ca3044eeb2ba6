// Geometry: the colour channels as bytes and as truncated floats, and colour in equality.
#include "tqWorkRig/model/geometry.h"

#include <limits>

#include "support/tqtest.h"
#include "tqWorkRig/model/box.h"

using tqWorkRig::Box;

TEST(Geometry, FloatChannelsTruncateAndWrapWithoutClamping) {
    Box box(u"b");
    EXPECT_EQ(box.Red(), 0);
    EXPECT_EQ(box.Alpha(), 255);
    box.SetRed(0.5f);
    EXPECT_EQ(box.Red(), 127);
    EXPECT_EQ(box.GetRed(), 127.0f / 255.0f);
    box.SetRed(2.0f);
    EXPECT_EQ(box.Red(), 254);
    box.SetGreen(0.999f);
    EXPECT_EQ(box.Green(), 254);
    box.SetBlue(-0.5f);  // -127 keeps its low eight bits
    EXPECT_EQ(box.Blue(), 129);
    box.SetBlue(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(box.Blue(), 0);
    box.SetAlpha(0.0f);
    EXPECT_EQ(box.Alpha(), 0);
    box.SetAlpha(1.0f);
    EXPECT_EQ(box.Alpha(), 255);
    EXPECT_EQ(box.GetAlpha(), 1.0f);
}

TEST(Geometry, EveryChannelTakesPartInEquality) {
    const Box reference(u"b");
    Box red(u"b"), green(u"b"), blue(u"b"), alpha(u"b");
    red.Red(1);
    green.Green(1);
    blue.Blue(1);
    alpha.Alpha(254);
    for (const Box* other : {&red, &green, &blue, &alpha}) EXPECT_FALSE(reference == *other);
}
