// WorkRigFileReader and its implementation: the file check, the archive, and the single pass over the document.
#include "tqWorkRig/persistence/workrigfilereader.h"

#include <tinyxml.h>

#include <boost/filesystem.hpp>
#include <boost/system/error_code.hpp>
#include <cstring>

#include "misc/tqexception.h"
#include "persistence/document/objectstringconverter.h"
#include "persistence/document/workrigfilereaderimpl.h"
#include "persistence/document/xmlnames.h"
#include "tqWorkRig/model/workrig.h"

namespace tqWorkRig {

WorkRigFileReaderImpl::WorkRigFileReaderImpl(const tqstring& fileName)
    : m_helper(xml::kXMLVersion, xml::kUTF8), m_toolSectionsRead(false) {
    LoadWorkRigFile(fileName);
}

WorkRigFileReaderImpl::~WorkRigFileReaderImpl() = default;

void WorkRigFileReaderImpl::LoadWorkRigFile(const tqstring& fileName) {
    // 1. The file must be there; a folder or anything else that exists goes on to fail at unzipping.
    boost::system::error_code error;
    if (!boost::filesystem::exists(boost::filesystem::path(misc::to_utf8(fileName)), error)) {
        misc::ThrowFailure(u"tqWorkRig::WorkRigFileReaderImpl::LoadWorkRigFile",
                           u"WR: The file \"" + fileName + u"\" does not exist!");
    }

    // 2. The archive, held in memory for as long as the reader lives.
    m_archive = ArchiveDataReader::Read(fileName);

    // 3. The walk.
    ReadNodes(m_archive->Document().FirstChild());
    // The archive has found a top-level "WorkRig" with its units, so the walk has met it too.
    TQ_ASSERT(m_workRig.IsNotNull());
}

void WorkRigFileReaderImpl::ReadNodes(const TiXmlNode* first) {
    const TiXmlNode* node = first;
    while (node != nullptr) {
        if (const TiXmlDeclaration* declaration = node->ToDeclaration()) {
            m_helper.ReadDeclaration(*declaration);
            node = node->NextSibling();
        } else if (const TiXmlElement* element = node->ToElement()) {
            node = ReadElement(*element);
        } else {
            // Comments, text and unknown nodes carry nothing.
            node = node->NextSibling();
        }
    }
}

const TiXmlNode* WorkRigFileReaderImpl::ReadElement(const TiXmlElement& element) {
    const char* tag = element.Value();
    if (std::strcmp(tag, xml::kWorkRig) == 0) {
        ReadWorkRig(element);
        return element.FirstChild();
    }
    if (std::strcmp(tag, xml::kAttribute) == 0) {
        m_helper.ReadAttribute(&element, *m_workRig);
    } else if (std::strcmp(tag, xml::kDockingFrames) == 0) {
        ReadDockingFrames(element);
        // The tool sections name frames, so they wait for this one, wherever they stand.
        if (!m_toolSectionsRead && element.Parent() != nullptr && element.Parent()->ToElement() != nullptr) {
            m_toolSectionsRead = true;
            ReadToolAssembliesArborsHoldersAndTools(*element.Parent()->ToElement());
        }
    } else if (std::strcmp(tag, xml::kConnectorTable) == 0) {
        ReadConnectorTable(element);
    } else if (std::strcmp(tag, xml::kStockMountStations) == 0) {
        ReadStockMountStations(element);
    } else if (std::strcmp(tag, xml::kStockAdapters) == 0) {
        ReadStockAdapters(element);
    } else if (std::strcmp(tag, xml::kStocks) == 0) {
        ReadStocks(element);
    } else if (std::strcmp(tag, xml::kToolMountStations) == 0) {
        ReadToolMountStations(element);
    } else if (std::strcmp(tag, xml::kToolAdapters) == 0) {
        ReadToolAdapters(element);
    } else if (std::strcmp(tag, xml::kWorkOffsets) == 0) {
        ReadWorkOffsets(element);
    } else if (std::strcmp(tag, xml::kTurningToolOffsets) == 0) {
        ReadTurningToolOffsets(element);
    } else if (std::strcmp(tag, xml::kMillingToolOffsets) == 0) {
        ReadMillingToolOffsets(element);
    } else if (std::strcmp(tag, xml::kMachineXMLFile) == 0) {
        ReadMachineXMLFile(element);
    } else if (std::strcmp(tag, xml::kNCFile) == 0) {
        ReadNCFile(element);
    }
    // Anything else is skipped: elements of later versions, and "Arbors", "Holders", "Tools" and
    // "ToolAssemblies", which "DockingFrames" has read already.
    return element.NextSibling();
}

void WorkRigFileReaderImpl::ReadWorkRig(const TiXmlElement& element) {
    const int version = m_helper.GetIntAttribute(&element, xml::kVersion);
    measures::tqUnitsFactory::Units units = measures::tqUnitsFactory::Metric;
    // No upper bound: a later version reads with the rules of version 2.
    if (version > kLastRootVersionWithoutUnits) {
        units = ObjectStringConverter::StringToUnitSystem(m_helper.GetAttribute(&element, xml::kUnits));
    }
    m_workRig = misc::tqAutoPointer<WorkRig>(new WorkRig(units));
    m_workRig->SetDisplayName(m_helper.GetAttribute(&element, xml::kDisplayName));
}

WorkRigFileReader::WorkRigFileReader(const misc::tqstring& fileName) : m_impl(new WorkRigFileReaderImpl(fileName)) {}

WorkRigFileReader::~WorkRigFileReader() = default;

const misc::tqAutoPointer<WorkRig>& WorkRigFileReader::GetWorkRig() const { return m_impl->GetWorkRig(); }

}  // namespace tqWorkRig
