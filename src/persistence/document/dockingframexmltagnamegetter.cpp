// DockingFrameXMLTagNameGetter: the element names of plugs and sockets.
#include "persistence/document/dockingframexmltagnamegetter.h"

#include "misc/tqexception.h"
#include "persistence/document/xmlnames.h"

namespace tqWorkRig {

void DockingFrameXMLTagNameGetter::Visit(const DockingFrameSocket&) { m_tagName = xml::kDockingFrameSocket; }

void DockingFrameXMLTagNameGetter::Visit(const DockingFramePlug&) { m_tagName = xml::kDockingFramePlug; }

void DockingFrameXMLTagNameGetter::Visit(const DockingFrame&) { misc::ThrowFailure(u"Not implemented!"); }

}  // namespace tqWorkRig
