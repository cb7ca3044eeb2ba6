// "Stocks": the rig's stocks, each a "Stock".
#include <tinyxml.h>

#include "persistence/document/workrigfilereaderimpl.h"
#include "persistence/document/workrigfilewriterimpl.h"
#include "persistence/document/xmlnames.h"

namespace tqWorkRig {

void WorkRigFileWriterImpl::WriteStocks(TiXmlElement& root) {
    // The rig has no stock list yet; the section stays empty until it arrives.
    root.LinkEndChild(new TiXmlElement(xml::kStocks));
}

void WorkRigFileReaderImpl::ReadStocks(const TiXmlElement& /*section*/) {
    // Nothing to read until the rig has a stock list: each "Stock" will give one stock.
}

}  // namespace tqWorkRig
