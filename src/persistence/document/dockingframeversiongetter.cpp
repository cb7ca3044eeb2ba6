// DockingFrameVersionGetter: the document version of plugs and sockets.
#include "persistence/document/dockingframeversiongetter.h"

#include "misc/tqexception.h"
#include "tqWorkRig/model/objectsversion.h"

namespace tqWorkRig {

void DockingFrameVersionGetter::Visit(const DockingFrameSocket&) {
    m_version = ObjectsVersion<DockingFrameSocket>::VERSION;
}

void DockingFrameVersionGetter::Visit(const DockingFramePlug&) {
    m_version = ObjectsVersion<DockingFramePlug>::VERSION;
}

void DockingFrameVersionGetter::Visit(const DockingFrame&) { misc::ThrowFailure(u"Not implemented!"); }

}  // namespace tqWorkRig
