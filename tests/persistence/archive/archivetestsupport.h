// Test helpers for the archive: temporary folders, sample documents and meshes, archives crafted with minizip,
// the central directory read and patched byte by byte, and the documented way of writing an archive.
#pragma once

#include <tinyxml.h>

#include <cstdint>
#include <string>
#include <vector>

#include "cadcam/geometry/tqtmesh.h"
#include "misc/tqautopointer.h"
#include "misc/tqstring.h"
#include "persistence/archive/archivedatawriter.h"

namespace archivetest {

using Bytes = std::vector<std::uint8_t>;
using MeshPointer = misc::tqAutoPointer<cadcam::tqTMesh<double>>;

/// A fresh folder under the system's temporary folder, removed with all it holds.
class TempFolder {
public:
    TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder();
    /// The folder joined with name, as UTF-8.
    std::string Path(const std::string& name = "") const;
    /// The same as a tqstring.
    misc::tqstring WidePath(const std::string& name) const { return misc::tqstring(Path(name)); }
    /// Names of the entries in the folder, sorted.
    std::vector<std::string> List() const;

private:
    std::string m_path;
};

Bytes ReadBytes(const std::string& path);
void WriteBytes(const std::string& path, const Bytes& bytes);
Bytes ToBytes(const std::string& text);
std::uint32_t Crc(const Bytes& bytes);

/// A document with a declaration, a root "WorkRig" with version and units, children, attributes and UTF-8 text.
void MakeDocument(TiXmlDocument& document, const char* units = "METRIC");
/// The document as TinyXML prints it to a string.
std::string DocumentText(const TiXmlDocument& document);
/// Triangles with three corners of their own each, so a round trip gives equal counts.
MeshPointer MakeMesh(std::size_t triangles, double seed = 1.0);
/// A mesh whose triangles share a grid of vertices.
MeshPointer MakeGridMesh(std::size_t columns, std::size_t rows);
/// Binary STL bytes of a mesh, header and all.
Bytes StlBytes(const cadcam::tqTMesh<double>& mesh);

/// How the documented writer produced an archive: the XML through a temporary file, cut after its last '>', and
/// each mesh as an 80-byte header then the piecewise STL writes (or the block writes, if blocks is set).
Bytes ReferenceArchive(const TiXmlDocument& document, const tqWorkRig::MeshList& meshes, int zlibLevel,
                       bool blocks = false);

/// One member of an archive crafted for a test.
struct CraftedMember {
    std::string name;
    Bytes data;
    int method = 8;  // 0 stored, 8 deflated
    int level = 6;
};
/// Writes the members in order with minizip.
void CraftArchive(const std::string& path, const std::vector<CraftedMember>& members);

/// One record of the central directory, with where it and its local header stand in the bytes.
struct CentralEntry {
    std::size_t offset = 0;       // of the central record
    std::size_t localOffset = 0;  // of the local header
    std::uint16_t flags = 0, method = 0, time = 0, date = 0;
    std::uint32_t crc = 0, compressedSize = 0, uncompressedSize = 0;
    std::uint16_t extraLength = 0, commentLength = 0, internalAttributes = 0;
    std::uint32_t externalAttributes = 0;
    std::string name;
    /// Where the member's data begins (after the local header, its name and extra field).
    std::size_t dataOffset = 0;
    std::uint16_t localExtraLength = 0, localTime = 0, localDate = 0;
};
/// The end record's position, its entry count and comment length, and every central record.
struct CentralDirectory {
    std::size_t endOffset = 0;
    std::uint16_t entries = 0;
    std::uint16_t commentLength = 0;
    std::vector<CentralEntry> members;
};
CentralDirectory ReadCentralDirectory(const Bytes& archive);

std::uint16_t Get16(const Bytes& bytes, std::size_t at);
std::uint32_t Get32(const Bytes& bytes, std::size_t at);
void Put16(Bytes& bytes, std::size_t at, std::uint16_t value);
void Put32(Bytes& bytes, std::size_t at, std::uint32_t value);

/// Patches a member's field in both its central record and its local header.
void PatchUncompressedSize(Bytes& archive, const CentralEntry& entry, std::uint32_t size);
void PatchCrc(Bytes& archive, const CentralEntry& entry, std::uint32_t crc);
void PatchMethod(Bytes& archive, const CentralEntry& entry, std::uint16_t method);
void PatchFlags(Bytes& archive, const CentralEntry& entry, std::uint16_t flags);
/// Overwrites one byte of the name in both records.
void PatchNameByte(Bytes& archive, const CentralEntry& entry, std::size_t index, char value);

/// The member's stored (compressed) bytes.
Bytes MemberData(const Bytes& archive, const CentralEntry& entry);
/// The member's content, inflated by plain zlib.
Bytes Inflate(const Bytes& compressed, std::size_t size);

}  // namespace archivetest
