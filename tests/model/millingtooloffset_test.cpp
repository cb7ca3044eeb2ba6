// MillingToolOffset: the two constructors and equality without the display name.
#include "tqWorkRig/model/millingtooloffset.h"

#include "support/tqtest.h"

using tqWorkRig::MillingToolOffset;

TEST(MillingToolOffset, ConstructorsAndEquality) {
    MillingToolOffset bare(u"D1");
    EXPECT_EQ(bare.GetDisplayName(), misc::tqstring(u"D1"));
    EXPECT_EQ(bare.GetName(), misc::tqstring());
    const MillingToolOffset a(u"T1", 10.0, 75.5, u"first");
    EXPECT_TRUE(MillingToolOffset(u"T1", 10.0, 75.5, u"second") == a);
    EXPECT_FALSE(MillingToolOffset(u"T1", 10.5, 75.5, u"first") == a);
    EXPECT_FALSE(MillingToolOffset(u"T1", 10.0, -1.0, u"first") == a);  // stored unchecked
    EXPECT_FALSE(MillingToolOffset(u"T2", 10.0, 75.5, u"first") == a);
}
