// Test helpers for the archive: folders, samples, crafted archives and the byte-level central directory.
#include "archivetestsupport.h"

#include <minizip/zip.h>
#include <stdlib.h>
#include <zlib.h>

#include <algorithm>
#include <boost/filesystem.hpp>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "cadcam/stl/tqtstltranslator.h"
#include "misc/tqbinstream.h"
#include "misc/tqmemoryiostream.h"

namespace archivetest {

namespace fs = boost::filesystem;

TempFolder::TempFolder() {
    std::string pattern = (fs::temp_directory_path() / "tqarchivetest-XXXXXX").string();
    if (mkdtemp(&pattern[0]) == nullptr) throw std::runtime_error("mkdtemp failed");
    m_path = pattern;
}

TempFolder::~TempFolder() {
    boost::system::error_code ignored;
    // Tests may leave read-only folders behind; open them up first.
    for (fs::recursive_directory_iterator it(m_path, ignored), end; it != end; it.increment(ignored)) {
        if (fs::is_directory(it->symlink_status())) fs::permissions(it->path(), fs::owner_all, ignored);
    }
    fs::permissions(m_path, fs::owner_all, ignored);
    fs::remove_all(m_path, ignored);
}

std::string TempFolder::Path(const std::string& name) const { return name.empty() ? m_path : m_path + "/" + name; }

std::vector<std::string> TempFolder::List() const {
    std::vector<std::string> names;
    for (fs::directory_iterator it(m_path), end; it != end; ++it) names.push_back(it->path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

Bytes ReadBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw std::runtime_error("cannot read " + path);
    return Bytes(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void WriteBytes(const std::string& path, const Bytes& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    if (!out) throw std::runtime_error("cannot write " + path);
}

Bytes ToBytes(const std::string& text) { return Bytes(text.begin(), text.end()); }

std::uint32_t Crc(const Bytes& bytes) {
    return static_cast<std::uint32_t>(crc32(crc32(0L, Z_NULL, 0), bytes.data(), static_cast<uInt>(bytes.size())));
}

void MakeDocument(TiXmlDocument& document, const char* units) {
    document.LinkEndChild(new TiXmlDeclaration("1.0", "UTF-8", ""));
    auto* root = new TiXmlElement("WorkRig");
    root->SetAttribute("version", "2");
    root->SetAttribute("units", units);
    root->SetAttribute("displayName", "Rig \xC3\x9C\xE6\x9C\xBA");  // "Rig Ü机"
    auto* attribute = new TiXmlElement("Attribute");
    attribute->SetAttribute("key", "note");
    attribute->SetAttribute("value", "a < b & \"c\"");
    root->LinkEndChild(attribute);
    auto* frames = new TiXmlElement("DockingFrames");
    for (int i = 0; i < 3; ++i) {
        auto* frame = new TiXmlElement("DockingFrame");
        frame->SetAttribute("uniqueID", i + 1);
        frame->LinkEndChild(new TiXmlText("1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1"));
        frames->LinkEndChild(frame);
    }
    root->LinkEndChild(frames);
    auto* geometry = new TiXmlElement("Mesh");
    geometry->SetAttribute("stlFile", "Meshes/Mesh_1.stl");
    root->LinkEndChild(geometry);
    document.LinkEndChild(root);
}

std::string DocumentText(const TiXmlDocument& document) {
    TiXmlPrinter printer;
    document.Accept(&printer);
    return printer.CStr();
}

MeshPointer MakeMesh(std::size_t triangles, double seed) {
    MeshPointer mesh(new cadcam::tqTMesh<double>());
    for (std::size_t i = 0; i < triangles; ++i) {
        const double x = seed + 0.37 * static_cast<double>(i), y = std::sin(x) * 10.0;
        mesh->AddTriangle({x, y, 1.0}, {x + 1.0, y, 2.5}, {x, y + 1.0, -3.25}, {0.0, 0.0, 1.0});
    }
    return mesh;
}

MeshPointer MakeGridMesh(std::size_t columns, std::size_t rows) {
    MeshPointer mesh(new cadcam::tqTMesh<double>());
    for (std::size_t r = 0; r <= rows; ++r)
        for (std::size_t c = 0; c <= columns; ++c)
            mesh->AddVertex({0.5 * static_cast<double>(c), 0.25 * static_cast<double>(r),
                             std::cos(0.1 * static_cast<double>(c + r))});
    for (std::size_t r = 0; r < rows; ++r)
        for (std::size_t c = 0; c < columns; ++c) {
            const auto a = static_cast<std::uint32_t>(r * (columns + 1) + c), b = a + 1;
            const auto d = static_cast<std::uint32_t>(a + columns + 1), e = d + 1;
            mesh->AddTriangle(a, b, e, {0.0, 0.0, 1.0});
            mesh->AddTriangle(a, e, d, {0.0, -0.1, 0.99});
        }
    return mesh;
}

Bytes StlBytes(const cadcam::tqTMesh<double>& mesh) {
    misc::tqMemoryIOStream out;
    cadcam::tqTSTLTranslator<double>::WriteSTLStream(mesh, out);
    return Bytes(out.GetBuffer(), out.GetBuffer() + out.GetSize());
}

namespace {

/// Passes every write to the open member, one minizip call each.
class MemberStream final : public misc::tqBinOutputStream {
public:
    explicit MemberStream(zipFile zip) : m_zip(zip) {}
    void Write(const void* source, std::uint64_t count) override {
        if (zipWriteInFileInZip(m_zip, source, static_cast<unsigned>(count)) != ZIP_OK)
            throw std::runtime_error("zipWriteInFileInZip");
    }

private:
    zipFile m_zip;
};

void OpenMember(zipFile zip, const std::string& name, int method, int level) {
    const zip_fileinfo info{};
    if (zipOpenNewFileInZip(zip, name.c_str(), &info, nullptr, 0, nullptr, 0, nullptr, method, level) != ZIP_OK)
        throw std::runtime_error("zipOpenNewFileInZip");
}

}  // namespace

Bytes ReferenceArchive(const TiXmlDocument& document, const tqWorkRig::MeshList& meshes, int zlibLevel, bool blocks) {
    TempFolder folder;
    const std::string xmlPath = folder.Path("document.wrxmltemp");
    std::FILE* file = std::fopen(xmlPath.c_str(), "w");
    document.SaveFile(file);
    std::fclose(file);
    const Bytes printed = ReadBytes(xmlPath);
    std::size_t length = printed.size();
    while (length > 0 && printed[length - 1] != '>') --length;

    const std::string archivePath = folder.Path("reference.zip");
    zipFile zip = zipOpen64(archivePath.c_str(), APPEND_STATUS_CREATE);
    OpenMember(zip, "WorkRig.xml", Z_DEFLATED, zlibLevel);
    if (length > 0) zipWriteInFileInZip(zip, printed.data(), static_cast<unsigned>(length));
    zipCloseFileInZip(zip);
    for (const auto& entry : meshes) {
        OpenMember(zip, misc::to_utf8(entry.name), Z_DEFLATED, zlibLevel);
        MemberStream stream(zip);
        if (blocks) {
            cadcam::tqTSTLTranslator<double>::WriteSTLStream(*entry.mesh, stream);
        } else {
            cadcam::tqTSTLTranslator<double>::WriteSTLHeader(stream);
            cadcam::tqTSTLTranslator<double>::WriteSTLData(*entry.mesh, stream);
        }
        zipCloseFileInZip(zip);
    }
    zipClose(zip, nullptr);
    return ReadBytes(archivePath);
}

void CraftArchive(const std::string& path, const std::vector<CraftedMember>& members) {
    zipFile zip = zipOpen64(path.c_str(), APPEND_STATUS_CREATE);
    if (zip == nullptr) throw std::runtime_error("zipOpen64 " + path);
    for (const auto& member : members) {
        OpenMember(zip, member.name, member.method, member.level);
        if (!member.data.empty())
            zipWriteInFileInZip(zip, member.data.data(), static_cast<unsigned>(member.data.size()));
        zipCloseFileInZip(zip);
    }
    zipClose(zip, nullptr);
}

std::uint16_t Get16(const Bytes& bytes, std::size_t at) {
    return static_cast<std::uint16_t>(bytes.at(at) | (bytes.at(at + 1) << 8));
}

std::uint32_t Get32(const Bytes& bytes, std::size_t at) {
    return static_cast<std::uint32_t>(Get16(bytes, at)) | (static_cast<std::uint32_t>(Get16(bytes, at + 2)) << 16);
}

void Put16(Bytes& bytes, std::size_t at, std::uint16_t value) {
    bytes.at(at) = static_cast<std::uint8_t>(value & 0xFF);
    bytes.at(at + 1) = static_cast<std::uint8_t>(value >> 8);
}

void Put32(Bytes& bytes, std::size_t at, std::uint32_t value) {
    Put16(bytes, at, static_cast<std::uint16_t>(value & 0xFFFF));
    Put16(bytes, at + 2, static_cast<std::uint16_t>(value >> 16));
}

CentralDirectory ReadCentralDirectory(const Bytes& archive) {
    CentralDirectory directory;
    std::size_t end = archive.size() - 22;
    while (Get32(archive, end) != 0x06054b50) {
        if (end == 0) throw std::runtime_error("no end record");
        --end;
    }
    directory.endOffset = end;
    directory.entries = Get16(archive, end + 10);
    directory.commentLength = Get16(archive, end + 20);
    std::size_t at = Get32(archive, end + 16);
    for (std::uint16_t i = 0; i < directory.entries; ++i) {
        if (Get32(archive, at) != 0x02014b50) throw std::runtime_error("bad central record");
        CentralEntry e;
        e.offset = at;
        e.flags = Get16(archive, at + 8);
        e.method = Get16(archive, at + 10);
        e.time = Get16(archive, at + 12);
        e.date = Get16(archive, at + 14);
        e.crc = Get32(archive, at + 16);
        e.compressedSize = Get32(archive, at + 20);
        e.uncompressedSize = Get32(archive, at + 24);
        const std::uint16_t nameLength = Get16(archive, at + 28);
        e.extraLength = Get16(archive, at + 30);
        e.commentLength = Get16(archive, at + 32);
        e.internalAttributes = Get16(archive, at + 36);
        e.externalAttributes = Get32(archive, at + 38);
        e.localOffset = Get32(archive, at + 42);
        e.name.assign(archive.begin() + static_cast<std::ptrdiff_t>(at + 46),
                      archive.begin() + static_cast<std::ptrdiff_t>(at + 46 + nameLength));
        const std::size_t local = e.localOffset;
        if (Get32(archive, local) != 0x04034b50) throw std::runtime_error("bad local header");
        e.localTime = Get16(archive, local + 10);
        e.localDate = Get16(archive, local + 12);
        e.localExtraLength = Get16(archive, local + 28);
        e.dataOffset = local + 30 + Get16(archive, local + 26) + e.localExtraLength;
        directory.members.push_back(e);
        at += 46 + nameLength + e.extraLength + e.commentLength;
    }
    return directory;
}

void PatchUncompressedSize(Bytes& archive, const CentralEntry& entry, std::uint32_t size) {
    Put32(archive, entry.offset + 24, size);
    Put32(archive, entry.localOffset + 22, size);
}

void PatchCrc(Bytes& archive, const CentralEntry& entry, std::uint32_t crc) {
    Put32(archive, entry.offset + 16, crc);
    Put32(archive, entry.localOffset + 14, crc);
}

void PatchMethod(Bytes& archive, const CentralEntry& entry, std::uint16_t method) {
    Put16(archive, entry.offset + 10, method);
    Put16(archive, entry.localOffset + 8, method);
}

void PatchFlags(Bytes& archive, const CentralEntry& entry, std::uint16_t flags) {
    Put16(archive, entry.offset + 8, flags);
    Put16(archive, entry.localOffset + 6, flags);
}

void PatchNameByte(Bytes& archive, const CentralEntry& entry, std::size_t index, char value) {
    archive.at(entry.offset + 46 + index) = static_cast<std::uint8_t>(value);
    archive.at(entry.localOffset + 30 + index) = static_cast<std::uint8_t>(value);
}

Bytes MemberData(const Bytes& archive, const CentralEntry& entry) {
    return Bytes(archive.begin() + static_cast<std::ptrdiff_t>(entry.dataOffset),
                 archive.begin() + static_cast<std::ptrdiff_t>(entry.dataOffset + entry.compressedSize));
}

Bytes Inflate(const Bytes& compressed, std::size_t size) {
    Bytes out(size + 1);
    z_stream stream{};
    inflateInit2(&stream, -MAX_WBITS);
    stream.next_in = const_cast<Bytef*>(compressed.data());
    stream.avail_in = static_cast<uInt>(compressed.size());
    stream.next_out = out.data();
    stream.avail_out = static_cast<uInt>(out.size());
    const int result = inflate(&stream, Z_FINISH);
    out.resize(stream.total_out);
    inflateEnd(&stream);
    if (result != Z_STREAM_END) throw std::runtime_error("inflate");
    return out;
}

}  // namespace archivetest
