// WorkRigFileWriter and its implementation: the document's declaration, root and section order, and the save.
#include "tqWorkRig/persistence/workrigfilewriter.h"

#include <tinyxml.h>

#include <boost/filesystem.hpp>
#include <boost/system/error_code.hpp>
#include <string>

#include "misc/tqexception.h"
#include "persistence/document/objectstringconverter.h"
#include "persistence/document/workrigfilewriterimpl.h"
#include "persistence/document/xmlnames.h"
#include "tqWorkRig/model/workrig.h"

namespace tqWorkRig {

namespace {

// The root's "version" whatever the FileVersion: readers tell the two shapes apart element by element.
constexpr int kWorkRigVersion = 2;

bool IsKnownLevel(WorkRigFileWriter::CompressionLevel level) {
    switch (level) {
        case WorkRigFileWriter::Default:
        case WorkRigFileWriter::None:
        case WorkRigFileWriter::Fastest:
        case WorkRigFileWriter::Best:
            return true;
    }
    return false;
}

}  // namespace

WorkRigFileWriterImpl::WorkRigFileWriterImpl(const misc::tqAutoPointer<WorkRig>& workRig,
                                             WorkRigFileWriter::FileVersion fileVersion)
    : m_helper(xml::kXMLVersion, xml::kUTF8),
      m_workRig(workRig),
      m_document(new TiXmlDocument()),
      m_meshes(new MeshList()),
      m_fileVersion(fileVersion) {
    const WorkRig& rig = *m_workRig;

    // 1. The declaration.
    m_document->LinkEndChild(m_helper.CreateDeclaration());

    // 2. The root and its attributes.
    std::unique_ptr<TiXmlElement> root(new TiXmlElement(xml::kWorkRig));
    m_helper.SetIntAttribute(*root, xml::kVersion, kWorkRigVersion);
    m_helper.SetAttribute(*root, xml::kUnits, ObjectStringConverter::UnitSystemToString(rig.GetUnits()));
    m_helper.SetAttribute(*root, xml::kDisplayName, rig.GetDisplayName());

    // 3. The root's "Attribute" children.
    m_helper.WriteAttributes(*root, rig);

    // 4. The root goes into the document.
    TiXmlElement& rootElement = *root;
    m_document->LinkEndChild(root.release());

    // 5. The sections, in file order.
    WriteDockingFrames(rootElement);
    WriteStockMountStations(rootElement);
    WriteToolMountStations(rootElement);
    WriteConnectorTable(rootElement);
    WriteStockAdapters(rootElement);
    WriteStocks(rootElement);
    WriteToolAdapters(rootElement);
    WriteToolAssembliesArborsHoldersAndTools(rootElement);
    WriteWorkOffsets(rootElement);
    WriteMachineXMLFile(rootElement);
    WriteNCFile(rootElement);
    WriteTurningToolOffsets(rootElement);
    WriteMillingToolOffsets(rootElement);
}

WorkRigFileWriterImpl::~WorkRigFileWriterImpl() = default;

void WorkRigFileWriterImpl::WriteToFile(const tqstring& fileName, WorkRigFileWriter::CompressionLevel level) const {
    // An unknown level is refused by the archive writer before it touches the disk; no folder is made for it.
    if (IsKnownLevel(level)) {
        const boost::filesystem::path folder = boost::filesystem::path(misc::to_utf8(fileName)).parent_path();
        if (!folder.empty()) {
            boost::system::error_code error;
            boost::filesystem::create_directories(folder, error);
            if (error) {
                misc::ThrowFailure(u"tqWorkRig::WorkRigFileWriterImpl::WriteToFile",
                                   u"WR: Could not create the folder \"" + tqstring(folder.string()) + u"\"!");
            }
        }
    }
    ArchiveDataWriter::Write(*m_document, fileName, *m_meshes, level);
}

WorkRigFileWriter::WorkRigFileWriter(const misc::tqAutoPointer<WorkRig>& workRig, FileVersion fileVersion)
    : m_impl(new WorkRigFileWriterImpl(workRig, fileVersion)) {}

WorkRigFileWriter::~WorkRigFileWriter() = default;

void WorkRigFileWriter::WriteToFile(const misc::tqstring& fileName) { WriteToFile(fileName, Default); }

void WorkRigFileWriter::WriteToFile(const misc::tqstring& fileName, CompressionLevel level) {
    m_impl->WriteToFile(fileName, level);
}

}  // namespace tqWorkRig
