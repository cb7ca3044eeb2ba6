// DockingFrameUniqueIDHelper: plugs and sockets numbered apart, each from 1, in counters the caller owns.
#include "persistence/document/dockingframeuniqueidhelper.h"

#include <cstdint>

#include "support/tqtest.h"
#include "tqWorkRig/model/dockingframeplug.h"
#include "tqWorkRig/model/dockingframesocket.h"

TEST(DockingFrameUniqueIDHelper, CountsEachKindApart) {
    std::uint64_t plugs = 0, sockets = 0;
    tqWorkRig::DockingFrameUniqueIDHelper helper(&plugs, &sockets);
    const tqWorkRig::DockingFramePlug plug(u"p");
    const tqWorkRig::DockingFrameSocket socket(u"s");
    plug.AcceptVisitor(helper);
    EXPECT_EQ(helper.GetUniqueID(), misc::tqstring(u"WRDockingFramePlug1"));
    socket.AcceptVisitor(helper);
    EXPECT_EQ(helper.GetUniqueID(), misc::tqstring(u"WRDockingFrameSocket1"));
    plug.AcceptVisitor(helper);
    EXPECT_EQ(helper.GetUniqueID(), misc::tqstring(u"WRDockingFramePlug2"));
    EXPECT_EQ(sockets, 1u);
    EXPECT_THROW_MSG(helper.Visit(static_cast<const tqWorkRig::DockingFrame&>(plug)), misc::tqException,
                     "Not implemented!");
    EXPECT_EQ(plugs, 2u);
}
