// ArchiveData: the loaded document and meshes of one archive, held in memory once the archive is closed.
#pragma once

#include <tinyxml.h>

#include <unordered_map>

#include "persistence/archive/archivedatareader.h"

namespace tqWorkRig {
namespace ArchiveDataReader {

/// The document and the meshes keyed by member name ("Meshes/Mesh_1.stl").
class ArchiveData final : public ArchiveDataInterface {
public:
    using MeshPointer = misc::tqAutoPointer<cadcam::tqTMesh<double>>;

    /// An empty document and an empty map of 8 buckets with a maximum load factor of 1.
    ArchiveData();
    ~ArchiveData() override;

    /// The loaded "WorkRig.xml".
    TiXmlDocument& Document() override;
    /// The mesh held for the exact source name; a miss throws "WR: Could not find mesh with source: " + source.
    MeshPointer Mesh(const tqstring& source) override;
    /// Enters a mesh under key, replacing one held there.
    void SetMesh(const tqstring& key, const MeshPointer& mesh);

private:
    TiXmlDocument m_document;
    std::unordered_map<tqstring, MeshPointer> m_meshes;
};

}  // namespace ArchiveDataReader
}  // namespace tqWorkRig
