// "ToolMountStations": the rig's tool mount stations, each a "ToolMountStation".
#include <tinyxml.h>

#include "persistence/document/workrigfilereaderimpl.h"
#include "persistence/document/workrigfilewriterimpl.h"
#include "persistence/document/xmlnames.h"

namespace tqWorkRig {

void WorkRigFileWriterImpl::WriteToolMountStations(TiXmlElement& root) {
    // The rig has no station list yet; the section stays empty until the stations and their ids arrive.
    root.LinkEndChild(new TiXmlElement(xml::kToolMountStations));
}

void WorkRigFileReaderImpl::ReadToolMountStations(const TiXmlElement& /*section*/) {
    // Nothing to read until the rig has a station list: each "ToolMountStation" will give a station and an id.
}

}  // namespace tqWorkRig
