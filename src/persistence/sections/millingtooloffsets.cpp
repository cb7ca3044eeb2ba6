// "MillingToolOffsets": the rig's milling tool offsets, each a "MillingToolOffset".
#include <tinyxml.h>

#include "persistence/document/workrigfilereaderimpl.h"
#include "persistence/document/workrigfilewriterimpl.h"
#include "persistence/document/xmlnames.h"

namespace tqWorkRig {

void WorkRigFileWriterImpl::WriteMillingToolOffsets(TiXmlElement& root) {
    // The rig has no milling tool offset list yet; the section stays empty until it arrives.
    root.LinkEndChild(new TiXmlElement(xml::kMillingToolOffsets));
}

void WorkRigFileReaderImpl::ReadMillingToolOffsets(const TiXmlElement& /*section*/) {
    // Nothing to read until the rig has a milling tool offset list: each "MillingToolOffset" will give one offset.
}

}  // namespace tqWorkRig
