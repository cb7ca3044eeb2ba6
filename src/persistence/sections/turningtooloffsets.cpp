// "TurningToolOffsets": the rig's turning tool offsets, each a "TurningToolOffset".
#include <tinyxml.h>

#include "persistence/document/workrigfilereaderimpl.h"
#include "persistence/document/workrigfilewriterimpl.h"
#include "persistence/document/xmlnames.h"

namespace tqWorkRig {

void WorkRigFileWriterImpl::WriteTurningToolOffsets(TiXmlElement& root) {
    // The rig has no turning tool offset list yet; the section stays empty until it arrives.
    root.LinkEndChild(new TiXmlElement(xml::kTurningToolOffsets));
}

void WorkRigFileReaderImpl::ReadTurningToolOffsets(const TiXmlElement& /*section*/) {
    // Nothing to read until the rig has a turning tool offset list: each "TurningToolOffset" will give one offset.
}

}  // namespace tqWorkRig
