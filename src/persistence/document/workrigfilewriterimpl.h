// WorkRigFileWriterImpl: builds "WorkRig.xml" and the mesh list of a rig; its section writers live one per file
// in persistence/sections/.
#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include "misc/tqautopointer.h"
#include "misc/tqstring.h"
#include "persistence/archive/archivedatawriter.h"
#include "persistence/document/uniqueidhelper.h"
#include "persistence/document/xmldocumenthelper.h"
#include "tqWorkRig/persistence/workrigfilewriter.h"

class TiXmlDocument;
class TiXmlElement;

namespace tqWorkRig {

class WorkRig;

/// The whole document is built by the constructor; later changes to the rig are not seen.
class WorkRigFileWriterImpl {
public:
    /// Running numbers of arbors, holders and tools by object address, kept while the tool sections are written.
    using NumberIDMap = std::map<const void*, std::uint64_t>;

    /// Builds the declaration, the root with its attributes, and the 16 sections in file order.
    WorkRigFileWriterImpl(const misc::tqAutoPointer<WorkRig>& workRig, WorkRigFileWriter::FileVersion fileVersion);
    ~WorkRigFileWriterImpl();
    WorkRigFileWriterImpl(const WorkRigFileWriterImpl&) = delete;
    WorkRigFileWriterImpl& operator=(const WorkRigFileWriterImpl&) = delete;

    /// Creates the parent folders of fileName and stores the document and the meshes there.
    void WriteToFile(const tqstring& fileName, WorkRigFileWriter::CompressionLevel level) const;

    /// The finished document.
    const TiXmlDocument& GetDocument() const { return *m_document; }
    /// The meshes collected for the archive, in the order of their member numbers.
    const MeshList& GetMeshes() const { return *m_meshes; }
    /// The shape asked for at construction.
    WorkRigFileWriter::FileVersion GetFileVersion() const { return m_fileVersion; }

private:
    // Sections, each in persistence/sections/<section>.cpp beside its reader.
    void WriteDockingFrames(TiXmlElement& root);
    void WriteStockMountStations(TiXmlElement& root);
    void WriteToolMountStations(TiXmlElement& root);
    void WriteConnectorTable(TiXmlElement& root);
    void WriteStockAdapters(TiXmlElement& root);
    void WriteStocks(TiXmlElement& root);
    void WriteToolAdapters(TiXmlElement& root);
    void WriteToolAssembliesArborsHoldersAndTools(TiXmlElement& root);
    void WriteArbors(TiXmlElement& root, NumberIDMap& arborIDs);
    void WriteHolders(TiXmlElement& root, NumberIDMap& holderIDs);
    void WriteTools(TiXmlElement& root, NumberIDMap& toolIDs);
    void WriteToolAssemblies(TiXmlElement& root, const NumberIDMap& arborIDs, const NumberIDMap& holderIDs,
                             const NumberIDMap& toolIDs);
    void WriteWorkOffsets(TiXmlElement& root);
    void WriteMachineXMLFile(TiXmlElement& root);
    void WriteNCFile(TiXmlElement& root);
    void WriteTurningToolOffsets(TiXmlElement& root);
    void WriteMillingToolOffsets(TiXmlElement& root);

    // Geometries nest in a child element when the file version is > 1.
    bool NestsGeometries() const { return m_fileVersion > kLastFlatGeometryFileVersion; }
    // Assemblies carry their alternative model, its plug and their tree when the file version is >= 2.
    bool WritesAssemblyTrees() const { return m_fileVersion >= kFirstAssemblyTreeFileVersion; }

    static constexpr int kLastFlatGeometryFileVersion = 1;
    static constexpr int kFirstAssemblyTreeFileVersion = 2;

    XMLDocumentHelper m_helper;
    misc::tqAutoPointer<WorkRig> m_workRig;
    std::unique_ptr<TiXmlDocument> m_document;
    UniqueIDMap m_frameIDs;
    UniqueIDMap m_stationIDs;
    misc::tqAutoPointer<MeshList> m_meshes;
    WorkRigFileWriter::FileVersion m_fileVersion;
};

}  // namespace tqWorkRig
