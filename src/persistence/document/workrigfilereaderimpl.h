// WorkRigFileReaderImpl: loads a rig from its archive in one pass over "WorkRig.xml"; its section readers live one
// per file in persistence/sections/.
#pragma once

#include "misc/tqautopointer.h"
#include "misc/tqstring.h"
#include "persistence/archive/archivedatareader.h"
#include "persistence/document/xmldocumenthelper.h"

class TiXmlElement;
class TiXmlNode;

namespace tqWorkRig {

class WorkRig;

/// Loads the whole file in the constructor; a failure throws and drops the rig under construction.
class WorkRigFileReaderImpl {
public:
    /// Loads fileName.
    explicit WorkRigFileReaderImpl(const tqstring& fileName);
    ~WorkRigFileReaderImpl();
    WorkRigFileReaderImpl(const WorkRigFileReaderImpl&) = delete;
    WorkRigFileReaderImpl& operator=(const WorkRigFileReaderImpl&) = delete;

    /// The rig built from the file.
    const misc::tqAutoPointer<WorkRig>& GetWorkRig() const { return m_workRig; }

private:
    void LoadWorkRigFile(const tqstring& fileName);
    // The single pass: each top-level node, then the children of "WorkRig", with the dispatch by tag.
    void ReadNodes(const TiXmlNode* first);
    // Returns the node the walk goes on with.
    const TiXmlNode* ReadElement(const TiXmlElement& element);
    void ReadWorkRig(const TiXmlElement& element);

    // Sections, each in persistence/sections/<section>.cpp beside its writer. Each takes the section element
    // and walks its children.
    void ReadDockingFrames(const TiXmlElement& section);
    void ReadStockMountStations(const TiXmlElement& section);
    void ReadToolMountStations(const TiXmlElement& section);
    void ReadConnectorTable(const TiXmlElement& section);
    void ReadStockAdapters(const TiXmlElement& section);
    void ReadStocks(const TiXmlElement& section);
    void ReadToolAdapters(const TiXmlElement& section);
    // Takes the root: "Arbors", "Holders", "Tools" and "ToolAssemblies" are found among its children.
    void ReadToolAssembliesArborsHoldersAndTools(const TiXmlElement& root);
    void ReadArbors(const TiXmlElement& section);
    void ReadHolders(const TiXmlElement& section);
    void ReadTools(const TiXmlElement& section);
    void ReadToolAssemblies(const TiXmlElement& section);
    void ReadWorkOffsets(const TiXmlElement& section);
    void ReadMachineXMLFile(const TiXmlElement& element);
    void ReadNCFile(const TiXmlElement& element);
    void ReadTurningToolOffsets(const TiXmlElement& section);
    void ReadMillingToolOffsets(const TiXmlElement& section);

    // The root's "units" is read when its version is > 1; version 1 files are metric.
    static constexpr int kLastRootVersionWithoutUnits = 1;

    XMLDocumentHelper m_helper;
    misc::tqAutoPointer<WorkRig> m_workRig;
    misc::tqAutoPointer<ArchiveDataReader::ArchiveDataInterface> m_archive;
    // The plug, socket and station maps (id to object) join here with the frame and station sections.
    bool m_toolSectionsRead;
};

}  // namespace tqWorkRig
