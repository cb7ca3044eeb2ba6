// "Tools": the rig's tools, each a "Tool" with a bare running number from 0.
#include <tinyxml.h>

#include "persistence/document/workrigfilereaderimpl.h"
#include "persistence/document/workrigfilewriterimpl.h"
#include "persistence/document/xmlnames.h"

namespace tqWorkRig {

void WorkRigFileWriterImpl::WriteTools(TiXmlElement& root, NumberIDMap& /*toolIDs*/) {
    // The rig has no tool list yet; the section is added empty, and no tool gets a number.
    root.LinkEndChild(new TiXmlElement(xml::kTools));
}

void WorkRigFileReaderImpl::ReadTools(const TiXmlElement& /*section*/) {
    // Nothing to read until the rig has a tool list: each child will give one tool with its number.
}

}  // namespace tqWorkRig
