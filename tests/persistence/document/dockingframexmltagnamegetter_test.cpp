// DockingFrameXMLTagNameGetter: the element name of each frame kind.
#include "persistence/document/dockingframexmltagnamegetter.h"

#include "support/tqtest.h"
#include "tqWorkRig/model/dockingframeplug.h"
#include "tqWorkRig/model/dockingframesocket.h"

TEST(DockingFrameXMLTagNameGetter, NamesTheElementOfEachKind) {
    tqWorkRig::DockingFrameXMLTagNameGetter tag;
    tqWorkRig::DockingFramePlug(u"p").AcceptVisitor(tag);
    EXPECT_STREQ(tag.GetTagName(), "DockingFramePlug");
    tqWorkRig::DockingFrameSocket(u"s").AcceptVisitor(tag);
    EXPECT_STREQ(tag.GetTagName(), "DockingFrameSocket");
    EXPECT_THROW_MSG(tag.Visit(static_cast<const tqWorkRig::DockingFrame&>(tqWorkRig::DockingFrameSocket(u"s"))),
                     misc::tqException, "Not implemented!");
}
