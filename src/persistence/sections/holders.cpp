// "Holders": the rig's holders, each a "Holder" with a bare running number from 0.
#include <tinyxml.h>

#include "persistence/document/workrigfilereaderimpl.h"
#include "persistence/document/workrigfilewriterimpl.h"
#include "persistence/document/xmlnames.h"

namespace tqWorkRig {

void WorkRigFileWriterImpl::WriteHolders(TiXmlElement& root, NumberIDMap& /*holderIDs*/) {
    // The rig has no holder list yet; the section is added empty, and no holder gets a number.
    root.LinkEndChild(new TiXmlElement(xml::kHolders));
}

void WorkRigFileReaderImpl::ReadHolders(const TiXmlElement& /*section*/) {
    // Nothing to read until the rig has a holder list: each child will give one holder with its number.
}

}  // namespace tqWorkRig
