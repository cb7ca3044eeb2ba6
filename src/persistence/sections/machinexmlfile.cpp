// "MachineXMLFile": the rig's machine definition file in its one attribute "file".
#include <tinyxml.h>

#include "persistence/document/workrigfilereaderimpl.h"
#include "persistence/document/workrigfilewriterimpl.h"
#include "persistence/document/xmlnames.h"
#include "tqWorkRig/model/workrig.h"

namespace tqWorkRig {

void WorkRigFileWriterImpl::WriteMachineXMLFile(TiXmlElement& root) {
    TiXmlElement* element = new TiXmlElement(xml::kMachineXMLFile);
    m_helper.SetAttribute(*element, xml::kFile, m_workRig->GetMachineXMLFile());
    root.LinkEndChild(element);
}

void WorkRigFileReaderImpl::ReadMachineXMLFile(const TiXmlElement& element) {
    m_workRig->SetMachineXMLFile(m_helper.GetAttribute(&element, xml::kFile));
}

}  // namespace tqWorkRig
