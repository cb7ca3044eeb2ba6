// Test helpers for archives: folders, samples, crafted archives and the byte-level central directory.
#include "support/ziptestutil.h"

#include <minizip/zip.h>
#include <stdlib.h>
#include <zlib.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>

#include "cadcam/stl/tqtstltranslator.h"
#include "misc/tqbinstream.h"
#include "misc/tqmemoryiostream.h"

namespace tqtest {

namespace fs = std::filesystem;

TempFolder::TempFolder() {
    std::string pattern = (fs::temp_directory_path() / "tqtest-XXXXXX").string();
    if (mkdtemp(&pattern[0]) == nullptr) throw std::runtime_error("mkdtemp failed");
    m_path = pattern;
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    // Tests may leave read-only folders behind; open them up first.
    fs::permissions(m_path, fs::perms::owner_all, fs::perm_options::add, ignored);
    for (fs::recursive_directory_iterator it(m_path, ignored), end; it != end; it.increment(ignored))
        if (it->is_directory(ignored) && !it->is_symlink(ignored))
            fs::permissions(it->path(), fs::perms::owner_all, fs::perm_options::add, ignored);
    fs::remove_all(m_path, ignored);
}

std::vector<std::string> TempFolder::List() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(m_path)) names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

Bytes ReadFileBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw std::runtime_error("cannot read " + path);
    return Bytes(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void WriteFileBytes(const std::string& path, const Bytes& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!out) throw std::runtime_error("cannot write " + path);
}

std::uint32_t Crc(const Bytes& bytes) {
    return static_cast<std::uint32_t>(
        crc32(crc32(0L, Z_NULL, 0), reinterpret_cast<const Bytef*>(bytes.data()), static_cast<uInt>(bytes.size())));
}

void MakeDocument(TiXmlDocument& document) {
    document.Parse(
        "<?xml version=\"1.0\" encoding=\"UTF-8\" ?><WorkRig version=\"2\" units=\"METRIC\" displayName=\"Rig "
        "\xC3\x9C\xE6\x9C\xBA\"><Attribute key=\"note\" value=\"a &lt; b &amp; &quot;c&quot;\" /><DockingFrames>"
        "<DockingFrame uniqueID=\"1\">1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1</DockingFrame>"
        "<DockingFrame uniqueID=\"2\">1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1</DockingFrame>"
        "<DockingFrame uniqueID=\"3\">1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1</DockingFrame></DockingFrames>"
        "<Mesh stlFile=\"Meshes/Mesh_1.stl\" /></WorkRig>");
}

std::string Printed(const TiXmlDocument& document) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::tmpfile(), &std::fclose);
    if (!file || !document.SaveFile(file.get())) throw std::runtime_error("cannot print the document");
    std::string text(static_cast<std::size_t>(std::ftell(file.get())), '\0');
    std::rewind(file.get());
    if (std::fread(&text[0], 1, text.size(), file.get()) != text.size()) throw std::runtime_error("cannot read back");
    text.resize(text.find_last_of('>') + 1);  // npos + 1 leaves nothing
    return text;
}

MeshPointer MakeMesh(std::size_t triangles, double seed) {
    MeshPointer mesh(new cadcam::tqTMesh<double>());
    for (std::size_t i = 0; i < triangles; ++i) {
        const double x = seed + 0.37 * static_cast<double>(i), y = std::sin(x) * 10.0;
        mesh->AddTriangle({x, y, 1.0}, {x + 1.0, y, 2.5}, {x, y + 1.0, -3.25}, {0.0, 0.0, 1.0});
    }
    return mesh;
}

Bytes StlBytes(const cadcam::tqTMesh<double>& mesh) {
    misc::tqMemoryIOStream out;
    cadcam::tqTSTLTranslator<double>::WriteSTLStream(mesh, out);
    return Bytes(reinterpret_cast<const char*>(out.GetBuffer()), out.GetSize());
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

void AddMember(zipFile zip, const std::string& name, int method, int level) {
    const zip_fileinfo info{};
    if (zipOpenNewFileInZip(zip, name.c_str(), &info, nullptr, 0, nullptr, 0, nullptr, method, level) != ZIP_OK)
        throw std::runtime_error("cannot add " + name);
}

}  // namespace

Bytes ReferenceArchive(const TiXmlDocument& document, const tqWorkRig::MeshList& meshes, int zlibLevel, bool blocks) {
    TempFolder folder;
    const std::string printed = Printed(document);
    zipFile zip = zipOpen64(folder.Path("reference.zip").c_str(), APPEND_STATUS_CREATE);
    AddMember(zip, "WorkRig.xml", Z_DEFLATED, zlibLevel);
    if (!printed.empty()) zipWriteInFileInZip(zip, printed.data(), static_cast<unsigned>(printed.size()));
    zipCloseFileInZip(zip);
    for (const auto& entry : meshes) {
        AddMember(zip, misc::to_utf8(entry.name), Z_DEFLATED, zlibLevel);
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
    return ReadFileBytes(folder.Path("reference.zip"));
}

void WriteZip(const std::string& path, const std::vector<ZipMember>& members) {
    zipFile zip = zipOpen64(path.c_str(), APPEND_STATUS_CREATE);
    if (zip == nullptr) throw std::runtime_error("cannot create " + path);
    for (const ZipMember& member : members) {
        AddMember(zip, member.name, member.method, member.method == 0 ? 0 : 6);
        if (!member.data.empty() &&
            zipWriteInFileInZip(zip, member.data.data(), static_cast<unsigned>(member.data.size())) != ZIP_OK)
            throw std::runtime_error("cannot write " + member.name);
        if (zipCloseFileInZip(zip) != ZIP_OK) throw std::runtime_error("cannot close " + member.name);
    }
    if (zipClose(zip, nullptr) != ZIP_OK) throw std::runtime_error("cannot close " + path);
}

std::vector<ZipMember> ReadZip(const std::string& path) {
    const Bytes archive = ReadFileBytes(path);
    std::vector<ZipMember> members;
    for (const CentralEntry& entry : ReadCentralDirectory(archive).members) {
        Bytes data = archive.substr(entry.dataOffset, entry.compressedSize);
        if (entry.method != 0) {
            Bytes out(entry.uncompressedSize + 1, '\0');
            z_stream stream{};
            inflateInit2(&stream, -MAX_WBITS);
            stream.next_in = reinterpret_cast<Bytef*>(&data[0]);
            stream.avail_in = static_cast<uInt>(data.size());
            stream.next_out = reinterpret_cast<Bytef*>(&out[0]);
            stream.avail_out = static_cast<uInt>(out.size());
            const int result = inflate(&stream, Z_FINISH);
            inflateEnd(&stream);
            if (result != Z_STREAM_END) throw std::runtime_error("cannot inflate " + entry.name);
            data = out.substr(0, stream.total_out);
        }
        members.push_back({entry.name, data, entry.method});
    }
    return members;
}

std::uint32_t GetLE(const Bytes& bytes, std::size_t at, int width) {
    std::uint32_t value = 0;
    for (int i = width - 1; i >= 0; --i) value = (value << 8) | static_cast<std::uint8_t>(bytes.at(at + i));
    return value;
}

void PutLE(Bytes& bytes, std::size_t at, std::uint32_t value, int width) {
    for (int i = 0; i < width; ++i, value >>= 8) bytes.at(at + i) = static_cast<char>(value & 0xFF);
}

CentralDirectory ReadCentralDirectory(const Bytes& archive) {
    CentralDirectory directory;
    directory.endOffset = archive.rfind("PK\x05\x06");
    if (directory.endOffset == Bytes::npos) throw std::runtime_error("no end record");
    std::size_t at = GetLE(archive, directory.endOffset + 16, 4);
    for (std::uint32_t i = GetLE(archive, directory.endOffset + 10, 2); i > 0; --i) {
        if (GetLE(archive, at, 4) != 0x02014b50) throw std::runtime_error("bad central record");
        CentralEntry e;
        e.offset = at;
        e.flags = static_cast<std::uint16_t>(GetLE(archive, at + kFlags, 2));
        e.method = static_cast<std::uint16_t>(GetLE(archive, at + kMethod, 2));
        e.crc = GetLE(archive, at + kCrc, 4);
        e.compressedSize = GetLE(archive, at + 20, 4);
        e.uncompressedSize = GetLE(archive, at + kUncompressedSize, 4);
        e.localOffset = GetLE(archive, at + 42, 4);
        e.name = archive.substr(at + 46, GetLE(archive, at + 28, 2));
        if (GetLE(archive, e.localOffset, 4) != 0x04034b50) throw std::runtime_error("bad local header");
        e.dataOffset =
            e.localOffset + 30 + GetLE(archive, e.localOffset + 26, 2) + GetLE(archive, e.localOffset + 28, 2);
        directory.members.push_back(e);
        at += 46 + e.name.size() + GetLE(archive, at + 30, 2) + GetLE(archive, at + 32, 2);
    }
    return directory;
}

void Patch(Bytes& archive, const CentralEntry& entry, Field field, std::uint32_t value) {
    const int width = field == kCrc || field == kUncompressedSize ? 4 : 2;
    PutLE(archive, entry.offset + field, value, width);
    PutLE(archive, entry.localOffset + field - 2, value, width);
}

}  // namespace tqtest
