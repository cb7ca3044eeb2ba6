// MountStation and its two kinds: the argument orders, equality, and the order by type, then station name.
#include "tqWorkRig/model/mountstation.h"

#include "support/tqtest.h"
#include "tqWorkRig/model/stockmountstation.h"
#include "tqWorkRig/model/toolmountstation.h"

using tqWorkRig::MountStation;
using tqWorkRig::StockMountStation;
using tqWorkRig::ToolMountStation;

TEST(MountStation, KindsTakeTheStationNameFirstAndOrderByTypeThenName) {
    const ToolMountStation tool(u"S1", u"Spindle");
    EXPECT_EQ(tool.GetStationName(), misc::tqstring(u"S1"));
    EXPECT_EQ(StockMountStation(u"T1", u"Table").GetStationType(), MountStation::StockStation);
    EXPECT_TRUE(MountStation(u"Spindle", u"S1", MountStation::ToolStation) == tool);

    EXPECT_TRUE(ToolMountStation(u"zzz", u"") < StockMountStation(u"aaa", u""));
    EXPECT_FALSE(StockMountStation(u"aaa", u"") < ToolMountStation(u"zzz", u""));
    EXPECT_TRUE(ToolMountStation(u"A", u"") < ToolMountStation(u"a", u""));  // by code units
    EXPECT_TRUE(ToolMountStation(u"a", u"") < ToolMountStation(u"ab", u""));

    const ToolMountStation front(u"S1", u"front"), back(u"S1", u"back");
    EXPECT_FALSE(front < back);
    EXPECT_FALSE(back < front);
    EXPECT_FALSE(front == back);
    EXPECT_FALSE(ToolMountStation(u"S1", u"x") == StockMountStation(u"S1", u"x"));
}
