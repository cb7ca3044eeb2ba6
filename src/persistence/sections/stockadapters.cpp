// "StockAdapters": the rig's stock adapters, each a "StockAdapter".
#include <tinyxml.h>

#include "persistence/document/workrigfilereaderimpl.h"
#include "persistence/document/workrigfilewriterimpl.h"
#include "persistence/document/xmlnames.h"

namespace tqWorkRig {

void WorkRigFileWriterImpl::WriteStockAdapters(TiXmlElement& root) {
    // The rig has no stock adapter list yet; the section stays empty until it arrives.
    root.LinkEndChild(new TiXmlElement(xml::kStockAdapters));
}

void WorkRigFileReaderImpl::ReadStockAdapters(const TiXmlElement& /*section*/) {
    // Nothing to read until the rig has a stock adapter list: each "StockAdapter" will give one adapter.
}

}  // namespace tqWorkRig
