// DockingFrameVersionGetter: the version of each frame kind; the abstract slot is refused as by the id helper.
#include "persistence/document/dockingframeversiongetter.h"

#include "support/tqtest.h"
#include "tqWorkRig/model/dockingframeplug.h"
#include "tqWorkRig/model/dockingframesocket.h"

TEST(DockingFrameVersionGetter, BothKindsAreVersionTwo) {
    tqWorkRig::DockingFrameVersionGetter version;
    tqWorkRig::DockingFramePlug(u"p").AcceptVisitor(version);
    EXPECT_EQ(version.GetVersion(), 2);
    tqWorkRig::DockingFrameSocket(u"s").AcceptVisitor(version);
    EXPECT_EQ(version.GetVersion(), 2);
    EXPECT_THROW_MSG(version.Visit(static_cast<const tqWorkRig::DockingFrame&>(tqWorkRig::DockingFramePlug(u"p"))),
                     misc::tqException, "Not implemented!");
}
