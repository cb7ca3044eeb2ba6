// Frames held through their base: a plug never equals a socket, and the abstract base cannot be compared.
#include "model/dockingframetypes.h"

#include "modeltestutil.h"
#include "support/tqtest.h"

using namespace modeltest;
using tqWorkRig::DockingFrame;
using tqWorkRig::DockingFrameCompareVisitor;

TEST(DockingFrameCompareVisitor, APlugAndASocketWithEqualContentsDiffer) {
    const PlugPtr plug = NewPlug(u"frame"), otherPlug = NewPlug(u"frame");
    const SocketPtr socket = NewSocket(u"frame");
    EXPECT_TRUE(static_cast<const DockingFrame&>(*plug) == *socket);  // the base equality alone would hold
    EXPECT_FALSE(DockingFrameCompareVisitor::Compare(*plug, *socket));
    EXPECT_FALSE(DockingFrameCompareVisitor::Compare(*socket, *plug));
    EXPECT_TRUE(DockingFrameCompareVisitor::Compare(*plug, *otherPlug));
    otherPlug->SetDisplayName(u"other");
    EXPECT_FALSE(DockingFrameCompareVisitor::Compare(*plug, *otherPlug));

    const tqAutoPointer<DockingFrame> none;
    EXPECT_TRUE(DockingFrameCompareVisitor::Compare(none, none));
    EXPECT_FALSE(DockingFrameCompareVisitor::Compare(tqAutoPointer<DockingFrame>(plug), none));
    EXPECT_THROW_MSG(DockingFrameCompareVisitor::Compare(ForeignFrame(), *plug), misc::tqException,
                     "tqWorkRig::detail_::CompareVisitor::Visit: WR: Trying to compare an abstract type.");
}
