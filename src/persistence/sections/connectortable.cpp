// "ConnectorTable": the rig's connector table, its name, its attributes and one "ConnectorTree" per station.
#include <tinyxml.h>

#include "persistence/document/workrigfilereaderimpl.h"
#include "persistence/document/workrigfilewriterimpl.h"
#include "persistence/document/xmlnames.h"

namespace tqWorkRig {

namespace {
constexpr int kConnectorTableVersion = 1;
}  // namespace

void WorkRigFileWriterImpl::WriteConnectorTable(TiXmlElement& root) {
    TiXmlElement* table = new TiXmlElement(xml::kConnectorTable);
    m_helper.SetIntAttribute(*table, xml::kVersion, kConnectorTableVersion);
    // The rig has no connector table yet: its name is written empty, and it has no attributes or trees.
    m_helper.SetAttribute(*table, xml::kDisplayName, tqstring());
    root.LinkEndChild(table);
}

void WorkRigFileReaderImpl::ReadConnectorTable(const TiXmlElement& /*section*/) {
    // Nothing to read until the rig has a connector table: "displayName", "Attribute" children, then the trees.
}

}  // namespace tqWorkRig
