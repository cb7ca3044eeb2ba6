// "StockMountStations": the rig's stock mount stations, each a "StockMountStation".
#include <tinyxml.h>

#include "persistence/document/workrigfilereaderimpl.h"
#include "persistence/document/workrigfilewriterimpl.h"
#include "persistence/document/xmlnames.h"

namespace tqWorkRig {

void WorkRigFileWriterImpl::WriteStockMountStations(TiXmlElement& root) {
    // The rig has no station list yet; the section stays empty until the stations and their ids arrive.
    root.LinkEndChild(new TiXmlElement(xml::kStockMountStations));
}

void WorkRigFileReaderImpl::ReadStockMountStations(const TiXmlElement& /*section*/) {
    // Nothing to read until the rig has a station list: each "StockMountStation" will give a station and an id.
}

}  // namespace tqWorkRig
