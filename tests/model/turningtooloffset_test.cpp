// TurningToolOffset: the two constructors and equality without the display name.
#include "tqWorkRig/model/turningtooloffset.h"

#include "support/tqtest.h"

using tqWorkRig::TurningToolOffset;

TEST(TurningToolOffset, ConstructorsAndEquality) {
    const TurningToolOffset single(u"T0101");
    EXPECT_EQ(single.GetName(), misc::tqstring(u"T0101"));
    EXPECT_EQ(single.GetDisplayName(), misc::tqstring(u"T0101"));
    EXPECT_TRUE(single == TurningToolOffset(u"T0101", 0, 0.0, u""));

    TurningToolOffset a(u"T1", 3, 0.4, u"first");
    const TurningToolOffset b(u"T1", 3, 0.4, u"second");
    EXPECT_TRUE(a.GetToolTipOffset() == cadcam::tqTPoint3d<double>(0, 0, 0));
    EXPECT_TRUE(a == b);
    a.SetToolTipOffset({0, 0, 0.001});
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(TurningToolOffset(u"T1", 9, 0.4, u"") == b);
    EXPECT_FALSE(TurningToolOffset(u"T1", 3, 0.8, u"") == b);
}
