// ArchiveDataWriter: stores a finished XML document and a mesh list as the ZIP archive of a work rig.
#pragma once

#include <vector>

#include "cadcam/geometry/tqtmesh.h"
#include "misc/tqautopointer.h"
#include "misc/tqstring.h"
#include "tqWorkRig/persistence/workrigfilewriter.h"

class TiXmlDocument;

namespace tqWorkRig {

using misc::tqstring;

/// One mesh member to be stored: its member name, as the document's "stlFile" names it, and the shared mesh.
struct MeshEntry {
    tqstring name;
    misc::tqAutoPointer<cadcam::tqTMesh<double>> mesh;
};

using MeshList = std::vector<MeshEntry>;

namespace ArchiveDataWriter {

/// Writes "WorkRig.xml" and then each mesh as binary STL, in list order, to the archive fileName.
void Write(const TiXmlDocument& document, const tqstring& fileName, const MeshList& meshes,
           WorkRigFileWriter::CompressionLevel level);

}  // namespace ArchiveDataWriter
}  // namespace tqWorkRig
