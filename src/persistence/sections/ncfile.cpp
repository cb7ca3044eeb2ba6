// "NCFile": the rig's part program file in its one attribute "file".
#include <tinyxml.h>

#include "persistence/document/workrigfilereaderimpl.h"
#include "persistence/document/workrigfilewriterimpl.h"
#include "persistence/document/xmlnames.h"
#include "tqWorkRig/model/workrig.h"

namespace tqWorkRig {

void WorkRigFileWriterImpl::WriteNCFile(TiXmlElement& root) {
    TiXmlElement* element = new TiXmlElement(xml::kNCFile);
    m_helper.SetAttribute(*element, xml::kFile, m_workRig->GetNCFile());
    root.LinkEndChild(element);
}

void WorkRigFileReaderImpl::ReadNCFile(const TiXmlElement& element) {
    // SetNCFile keeps only the file part, as it does for any caller.
    m_workRig->SetNCFile(m_helper.GetAttribute(&element, xml::kFile));
}

}  // namespace tqWorkRig
