// Cylinder: defaults, unchecked values and exact equality of every field.
#include "tqWorkRig/model/cylinder.h"

#include "support/tqtest.h"

using cadcam::tqTPoint3d;
using tqWorkRig::Cylinder;

TEST(Cylinder, DefaultsAndEveryFieldInEquality) {
    const Cylinder c(u"c"), reference({1, 2, 3}, {0, 0, 0}, 0.0, -4.0, u"c");
    EXPECT_EQ(c.GetStartPoint(), tqTPoint3d<double>(0, 0, 0));
    EXPECT_EQ(c.GetAxis(), tqTPoint3d<double>(0, 0, 1));
    EXPECT_EQ(c.GetDiameter(), 1.0);
    EXPECT_EQ(c.GetLength(), 1.0);
    EXPECT_TRUE(reference == Cylinder(reference));
    Cylinder start(reference), axis(reference), diameter(reference), length(reference);
    start.SetStartPoint({1, 2, 3.5});
    axis.SetAxis({0, 0, 1});
    diameter.SetDiameter(0.5);
    length.SetLength(4.0);
    for (const Cylinder* other : {&start, &axis, &diameter, &length}) EXPECT_TRUE(reference != *other);
}
