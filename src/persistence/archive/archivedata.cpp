// ArchiveData: document access and the mesh lookup by exact member name.
#include "persistence/archive/archivedata.h"

#include "misc/tqexception.h"

namespace tqWorkRig {
namespace ArchiveDataReader {

ArchiveDataInterface::~ArchiveDataInterface() = default;

ArchiveData::ArchiveData() : m_meshes(8) { m_meshes.max_load_factor(1.0f); }

ArchiveData::~ArchiveData() = default;

TiXmlDocument& ArchiveData::Document() { return m_document; }

ArchiveData::MeshPointer ArchiveData::Mesh(const tqstring& source) {
    const auto found = m_meshes.find(source);
    if (found == m_meshes.end())
        misc::ThrowFailure(u"tqWorkRig::ArchiveDataReader::ArchiveData::Mesh",
                           u"WR: Could not find mesh with source: " + source);
    return found->second;
}

void ArchiveData::SetMesh(const tqstring& key, const MeshPointer& mesh) { m_meshes[key] = mesh; }

}  // namespace ArchiveDataReader
}  // namespace tqWorkRig
