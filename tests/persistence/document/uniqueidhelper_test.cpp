// UniqueIDHelper: id texts, and the look-up messages for frames and stations, which carry no function name.
#include "persistence/document/uniqueidhelper.h"

#include "support/tqtest.h"

using misc::tqstring;
using tqWorkRig::UniqueIDHelper;
using tqWorkRig::UniqueIDMap;

TEST(UniqueIDHelper, PrefixAndDecimalNumber) {
    EXPECT_EQ(UniqueIDHelper::MakePrefixedID("WRStock", 3), tqstring(u"WRStock3"));
    EXPECT_EQ(UniqueIDHelper::MakePrefixedID("WRDockingFramePlug", 12), tqstring(u"WRDockingFramePlug12"));
}

TEST(UniqueIDHelper, FoundByAddressOrFails) {
    const int frame = 0, station = 0, unknown = 0;
    const UniqueIDMap ids = {{&frame, u"WRDockingFrameSocket1"}, {&station, u"WRToolMountStation2"}};
    EXPECT_EQ(UniqueIDHelper::GetFrameID(ids, &frame), tqstring(u"WRDockingFrameSocket1"));
    EXPECT_EQ(UniqueIDHelper::GetStationID(ids, &station), tqstring(u"WRToolMountStation2"));
    EXPECT_THROW_CODE(UniqueIDHelper::GetFrameID(ids, nullptr), misc::tqException, 0, "Object is null!");
    EXPECT_THROW_CODE(UniqueIDHelper::GetFrameID(ids, &unknown), misc::tqException, 0, "Object's uniqueID not found!");
    EXPECT_THROW_CODE(UniqueIDHelper::GetStationID(ids, nullptr), misc::tqException, 0, "Object is null!");
    EXPECT_THROW_CODE(UniqueIDHelper::GetStationID(ids, &unknown), misc::tqException, 0, "Objects uniqueID not found!");
}
