// Test helpers for archives, written on minizip and zlib so that they share no code with the library's archive:
// a temporary folder, sample documents and meshes, crafted archives, and the central directory read byte by byte.
#pragma once

#include <tinyxml.h>

#include <cstdint>
#include <string>
#include <vector>

#include "persistence/archive/archivedatawriter.h"

namespace tqtest {

/// The bytes of a file or of a member.
using Bytes = std::string;
using MeshPointer = misc::tqAutoPointer<cadcam::tqTMesh<double>>;

/// A new folder under the system's temporary folder, removed with everything in it (read-only folders too).
class TempFolder {
public:
    TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder();
    /// The folder, or a name inside it (which need not exist).
    std::string Path(const std::string& name = "") const { return name.empty() ? m_path : m_path + "/" + name; }
    /// The names of the folder's entries, sorted.
    std::vector<std::string> List() const;

private:
    std::string m_path;
};

/// The whole file; throws std::runtime_error when it can't be read.
Bytes ReadFileBytes(const std::string& path);
/// Replaces the file's content; throws std::runtime_error when it can't be written.
void WriteFileBytes(const std::string& path, const Bytes& bytes);
std::uint32_t Crc(const Bytes& bytes);

/// A document with a declaration, a root "WorkRig" with version and units, children, attributes and UTF-8 text.
void MakeDocument(TiXmlDocument& document);
/// What TiXmlDocument saves to a C stream, cut after its last '>'.
std::string Printed(const TiXmlDocument& document);
/// Triangles with three corners of their own each, so a round trip gives equal counts.
MeshPointer MakeMesh(std::size_t triangles, double seed = 1.0);
/// Binary STL bytes of a mesh, header and all.
Bytes StlBytes(const cadcam::tqTMesh<double>& mesh);
/// The archive as the documented writer made it: the printed XML, and each mesh as an 80-byte header then the
/// piecewise STL writes (or the block writes, if blocks is set).
Bytes ReferenceArchive(const TiXmlDocument& document, const tqWorkRig::MeshList& meshes, int zlibLevel,
                       bool blocks = false);

/// One member of an archive: its name, its content, and 8 for deflated (level 6) or 0 for stored.
struct ZipMember {
    std::string name;
    Bytes data;
    int method = 8;
};
/// Writes an archive at path with the members in order; throws std::runtime_error on failure.
void WriteZip(const std::string& path, const std::vector<ZipMember>& members);
/// The members of an archive with their content, in the order of its central directory.
std::vector<ZipMember> ReadZip(const std::string& path);

/// One record of the central directory, with where it, its local header and its data stand in the archive.
struct CentralEntry {
    std::size_t offset = 0, localOffset = 0, dataOffset = 0;
    std::uint16_t flags = 0, method = 0;
    std::uint32_t crc = 0, compressedSize = 0, uncompressedSize = 0;
    std::string name;
};
/// The end record's position and every central record.
struct CentralDirectory {
    std::size_t endOffset = 0;
    std::vector<CentralEntry> members;
};
CentralDirectory ReadCentralDirectory(const Bytes& archive);

/// Little-endian fields of 2 or 4 bytes.
std::uint32_t GetLE(const Bytes& bytes, std::size_t at, int width);
void PutLE(Bytes& bytes, std::size_t at, std::uint32_t value, int width);
/// Offsets in a central record of fields that the local header holds too, two bytes earlier.
enum Field : std::size_t { kFlags = 8, kMethod = 10, kCrc = 16, kUncompressedSize = 24 };
/// Overwrites a field in both the member's central record and its local header.
void Patch(Bytes& archive, const CentralEntry& entry, Field field, std::uint32_t value);

}  // namespace tqtest
