// "WorkOffsets": the rig's work offsets, each a "WorkOffset".
#include <tinyxml.h>

#include "persistence/document/workrigfilereaderimpl.h"
#include "persistence/document/workrigfilewriterimpl.h"
#include "persistence/document/xmlnames.h"

namespace tqWorkRig {

void WorkRigFileWriterImpl::WriteWorkOffsets(TiXmlElement& root) {
    // The rig has no work offset list yet; the section stays empty until it arrives.
    root.LinkEndChild(new TiXmlElement(xml::kWorkOffsets));
}

void WorkRigFileReaderImpl::ReadWorkOffsets(const TiXmlElement& /*section*/) {
    // Nothing to read until the rig has a work offset list: each "WorkOffset" will give one offset.
}

}  // namespace tqWorkRig
