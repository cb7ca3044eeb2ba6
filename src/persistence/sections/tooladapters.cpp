// "ToolAdapters": the rig's tool adapters, each a "ToolAdapter".
#include <tinyxml.h>

#include "persistence/document/workrigfilereaderimpl.h"
#include "persistence/document/workrigfilewriterimpl.h"
#include "persistence/document/xmlnames.h"

namespace tqWorkRig {

void WorkRigFileWriterImpl::WriteToolAdapters(TiXmlElement& root) {
    // The rig has no tool adapter list yet; the section stays empty until it arrives.
    root.LinkEndChild(new TiXmlElement(xml::kToolAdapters));
}

void WorkRigFileReaderImpl::ReadToolAdapters(const TiXmlElement& /*section*/) {
    // Nothing to read until the rig has a tool adapter list: each "ToolAdapter" will give one adapter.
}

}  // namespace tqWorkRig
