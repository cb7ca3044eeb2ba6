// ArchiveDataReader: opens the ZIP archive of a work rig and holds its document and meshes in memory.
#pragma once

#include "cadcam/geometry/tqtmesh.h"
#include "misc/tqautopointer.h"
#include "misc/tqstring.h"

class TiXmlDocument;

namespace tqWorkRig {

using misc::tqstring;

namespace ArchiveDataReader {

/// What a document reader asks of an opened archive.
class ArchiveDataInterface {
public:
    /// The loaded "WorkRig.xml".
    virtual TiXmlDocument& Document() = 0;
    /// The mesh held for a member name, compared whole and case-sensitively; a miss throws.
    virtual misc::tqAutoPointer<cadcam::tqTMesh<double>> Mesh(const tqstring& source) = 0;
    virtual ~ArchiveDataInterface();
};

/// Reads the whole archive into memory: the document and every mesh member.
misc::tqAutoPointer<ArchiveDataInterface> Read(const tqstring& fileName);

}  // namespace ArchiveDataReader
}  // namespace tqWorkRig
