// "Arbors": the rig's arbors, each an "Arbor" with a bare running number from 0.
#include <tinyxml.h>

#include "persistence/document/workrigfilereaderimpl.h"
#include "persistence/document/workrigfilewriterimpl.h"
#include "persistence/document/xmlnames.h"

namespace tqWorkRig {

void WorkRigFileWriterImpl::WriteArbors(TiXmlElement& root, NumberIDMap& /*arborIDs*/) {
    // The rig has no arbor list yet; the section is added empty, and no arbor gets a number.
    root.LinkEndChild(new TiXmlElement(xml::kArbors));
}

void WorkRigFileReaderImpl::ReadArbors(const TiXmlElement& /*section*/) {
    // Nothing to read until the rig has a arbor list: each child will give one arbor with its number.
}

}  // namespace tqWorkRig
