// "DockingFrames": the rig's docking frames, "DockingFramePlug" and "DockingFrameSocket" mixed, in list order.
#include <tinyxml.h>

#include "persistence/document/workrigfilereaderimpl.h"
#include "persistence/document/workrigfilewriterimpl.h"
#include "persistence/document/xmlnames.h"

namespace tqWorkRig {

void WorkRigFileWriterImpl::WriteDockingFrames(TiXmlElement& root) {
    // The rig has no frame list yet; the section stays empty until the frames and their ids arrive.
    root.LinkEndChild(new TiXmlElement(xml::kDockingFrames));
}

void WorkRigFileReaderImpl::ReadDockingFrames(const TiXmlElement& /*section*/) {
    // Nothing to read until the rig has a frame list: each child will give a frame and fill the plug or socket map.
}

}  // namespace tqWorkRig
