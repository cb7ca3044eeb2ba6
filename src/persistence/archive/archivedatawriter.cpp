// ArchiveDataWriter: "WorkRig.xml" and the binary STL meshes, deflated into a ZIP archive that replaces the target
// only once it is complete.
//
// The archive's bytes are what counts, not how they are produced: at levels other than 0 deflate's output does not
// depend on how its input is split, so the STL data goes to zlib in large blocks; at level 0 deflate's stored blocks
// break where the writes break, so there the writes are exactly the header, the count, and 12, 12, 12, 12 and 2
// bytes for each triangle. The XML is printed by TiXmlDocument into memory rather than a temporary file.
#include "persistence/archive/archivedatawriter.h"

#include <cxxabi.h>
#include <fcntl.h>
#include <minizip/zip.h>
#include <sys/stat.h>
#include <tinyxml.h>
#include <unistd.h>

#include <algorithm>
#include <boost/filesystem/path.hpp>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <new>
#include <string>

#include "cadcam/stl/tqtstltranslator.h"
#include "misc/tqbinstream.h"
#include "misc/tqexception.h"
#include "persistence/archive/zipfilefunctions.h"

namespace tqWorkRig {
namespace ArchiveDataWriter {

namespace {

constexpr const char16_t kZlibLevelTag[] = u"tqWorkRig::ArchiveDataWriter::`anonymous-namespace'::zlibLevel";
constexpr const char16_t kOpenTag[] = u"tqWorkRig::ArchiveDataWriter::`anonymous-namespace'::ZipArchive::ZipArchive";
constexpr const char16_t kPermissionsTag[] =
    u"tqWorkRig::ArchiveDataWriter::`anonymous-namespace'::ZipArchive::CheckForWritePermissions";
constexpr const char16_t kStreamOpenTag[] =
    u"tqWorkRig::ArchiveDataWriter::`anonymous-namespace'::ZipArchive::ZipStream::ZipStream";
constexpr const char16_t kStreamWriteTag[] =
    u"tqWorkRig::ArchiveDataWriter::`anonymous-namespace'::ZipArchive::ZipStream::Write";
constexpr const char16_t kAddTag[] = u"tqWorkRig::ArchiveDataWriter::`anonymous-namespace'::ZipArchive::Add";
constexpr const char16_t kWriteTag[] = u"tqWorkRig::ArchiveDataWriter::Write";

constexpr const char kDocumentMember[] = "WorkRig.xml";
// minizip's byte count for one write is 32 bits.
constexpr std::uint64_t kLargestZipWrite = std::numeric_limits<unsigned int>::max();

using Translator = cadcam::tqTSTLTranslator<double>;

/// The zlib level for a CompressionLevel; runs before anything touches the disk.
int zlibLevel(WorkRigFileWriter::CompressionLevel level) {
    switch (level) {
        case WorkRigFileWriter::Default:
            return -1;
        case WorkRigFileWriter::None:
            return 0;
        case WorkRigFileWriter::Fastest:
            return 1;
        case WorkRigFileWriter::Best:
            return 9;
    }
    misc::ThrowFailure(kZlibLevelTag, u"Unknown value for WorkRigFileWriter::CompressionLevel: " +
                                          misc::to_tqstring(static_cast<long long>(level)));
}

/// TiXmlDocument's own output to a C stream, as it would save it to a file.
std::string PrintDocument(const TiXmlDocument& document, const tqstring& name) {
    char* buffer = nullptr;
    std::size_t size = 0;
    std::FILE* stream = open_memstream(&buffer, &size);
    if (stream == nullptr) throw std::bad_alloc();
    const bool saved = document.SaveFile(stream);
    const bool closed = std::fclose(stream) == 0;
    std::string text;
    try {
        if (buffer != nullptr) text.assign(buffer, size);
    } catch (...) {
        std::free(buffer);
        throw;
    }
    std::free(buffer);
    if (!saved || !closed) misc::ThrowFailure(kAddTag, u"Error when printing '" + name + u"'.");
    return text;
}

/// The archive being written: a sibling of the target that becomes the target in Close.
class ZipArchive {
public:
    class ZipStream;

    explicit ZipArchive(const tqstring& file);
    ZipArchive(const ZipArchive&) = delete;
    ZipArchive& operator=(const ZipArchive&) = delete;
    /// Without Close, the sibling is dropped and the target stays as it was.
    ~ZipArchive();

    /// The document, cut after its last '>'.
    void Add(const TiXmlDocument& document, const tqstring& name, int level);
    /// One mesh as binary STL.
    void Add(const cadcam::tqTMesh<double>& mesh, const tqstring& name, int level);
    /// Writes the central directory and puts the archive in the target's place; false on failure.
    bool Close();

private:
    static void CheckForWritePermissions(const tqstring& file);

    detail::ZipWriteTarget m_target;
    zipFile m_handle = nullptr;
};

/// One open member; minizip allows one at a time.
class ZipArchive::ZipStream final : public misc::tqBinOutputStream {
public:
    ZipStream(zipFile archive, const std::string& name, int level, int* closeResult);
    ZipStream(const ZipStream&) = delete;
    ZipStream& operator=(const ZipStream&) = delete;
    /// Closes the member into *closeResult; never throws, so the caller checks that result.
    ~ZipStream() override;
    void Write(const void* source, std::uint64_t count) override;

private:
    zipFile m_archive;
    std::string m_name;
    int* m_closeResult;
};

ZipArchive::ZipStream::ZipStream(zipFile archive, const std::string& name, int level, int* closeResult)
    : m_archive(archive), m_name(name), m_closeResult(closeResult) {
    // A zeroed record: no date, no time, no attributes.
    const zip_fileinfo info{};
    if (zipOpenNewFileInZip(m_archive, m_name.c_str(), &info, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED, level) !=
        ZIP_OK)
        misc::ThrowFailure(kStreamOpenTag, u"Error adding '" + tqstring(m_name) + u"' to zip.");
}

ZipArchive::ZipStream::~ZipStream() { *m_closeResult = zipCloseFileInZip(m_archive); }

void ZipArchive::ZipStream::Write(const void* source, std::uint64_t count) {
    const auto* bytes = static_cast<const unsigned char*>(source);
    while (count > 0) {
        const auto chunk = static_cast<unsigned int>(std::min(count, kLargestZipWrite));
        if (zipWriteInFileInZip(m_archive, bytes, chunk) != ZIP_OK)
            misc::ThrowFailure(kStreamWriteTag, u"Error while adding content of '" + tqstring(m_name) + u"' to zip.");
        bytes += chunk;
        count -= chunk;
    }
}

ZipArchive::ZipArchive(const tqstring& file) : m_target(misc::to_utf8(file)) {
    m_handle = zipOpen2_64(detail::kZipDummyPath, APPEND_STATUS_CREATE, nullptr, m_target.GetFunctions());
    if (m_handle == nullptr) {
        CheckForWritePermissions(file);
        misc::ThrowFailure(kOpenTag, u"Error when creating archive '" + file + u"'.");
    }
}

ZipArchive::~ZipArchive() {
    if (m_handle != nullptr) zipClose(m_handle, nullptr);
}

/// Turns a bare failure to open into a helpful message. The target is never truncated here: a file standing there
/// is opened for writing as it is, and only a file created by this check is removed again.
void ZipArchive::CheckForWritePermissions(const tqstring& file) {
    const boost::filesystem::path path(misc::to_utf8(file));
    const boost::filesystem::path folder = path.parent_path();
    if (folder.empty()) return;
    const tqstring folderText(folder.string());
    struct stat folderStatus;
    if (stat(folder.c_str(), &folderStatus) == 0 && (folderStatus.st_mode & 0222) == 0)
        misc::ThrowFailure(kPermissionsTag,
                           u"WR: You do not have the permissions to write to the folder: '" + folderText + u"'.");
    struct stat existing;
    const bool exists = lstat(path.c_str(), &existing) == 0;
    const int fd = exists ? open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK)
                          : open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOCTTY, 0666);
    if (fd < 0)
        misc::ThrowFailure(kPermissionsTag, u"WR: Could not create file: '" + file +
                                                u"'. Perhaps you do not have the permissions to create a file within "
                                                u"the folder: '" +
                                                folderText + u"'.");
    close(fd);
    if (!exists) unlink(path.c_str());
}

void ZipArchive::Add(const TiXmlDocument& document, const tqstring& name, int level) {
    const std::string text = PrintDocument(document, name);
    // The printer's line end after the root element is not stored.
    const std::size_t last = text.rfind('>');
    const std::size_t length = last == std::string::npos ? 0 : last + 1;
    int closed = ZIP_OK;
    {
        ZipStream stream(m_handle, misc::to_utf8(name), level, &closed);
        stream.Write(text.data(), length);
    }
    if (closed != ZIP_OK) misc::ThrowFailure(kAddTag, u"Error when closing '" + name + u"' in zip file.");
}

void ZipArchive::Add(const cadcam::tqTMesh<double>& mesh, const tqstring& name, int level) {
    int closed = ZIP_OK;
    {
        ZipStream stream(m_handle, misc::to_utf8(name), level, &closed);
        if (level == 0) {
            Translator::WriteSTLHeader(stream);
            Translator::WriteSTLData(mesh, stream);
        } else {
            Translator::WriteSTLStream(mesh, stream);
        }
    }
    if (closed != ZIP_OK) misc::ThrowFailure(kAddTag, u"Error when closing '" + name + u"' in zip file.");
}

bool ZipArchive::Close() {
    // A finished archive reaches the device before it takes the target's place.
    m_target.SetSyncOnClose(true);
    const int closed = zipClose(m_handle, nullptr);
    m_handle = nullptr;
    return closed == ZIP_OK && m_target.Commit();
}

void WriteArchive(const TiXmlDocument& document, const tqstring& fileName, const MeshList& meshes, int level) {
    ZipArchive archive(fileName);
    archive.Add(document, tqstring(kDocumentMember), level);
    for (const MeshEntry& entry : meshes) archive.Add(*entry.mesh, entry.name, level);
    if (!archive.Close()) misc::ThrowFailure(kWriteTag, u"Error when closing zip archive '" + fileName + u"'.");
}

}  // namespace

void Write(const TiXmlDocument& document, const tqstring& fileName, const MeshList& meshes,
           WorkRigFileWriter::CompressionLevel level) {
    const int zlevel = zlibLevel(level);
    // Only the library's own failures leave the writer.
    try {
        WriteArchive(document, fileName, meshes, zlevel);
    } catch (const misc::tqException&) {
        throw;
    } catch (const abi::__forced_unwind&) {
        throw;
    } catch (const std::bad_alloc&) {
        throw misc::tqMemoryException(0, tqstring(kWriteTag) + u": Not enough memory to write '" + fileName + u"'.");
    } catch (const std::exception& e) {
        misc::ThrowFailure(kWriteTag, u"Unexpected failure when writing '" + fileName + u"': " + tqstring(e.what()));
    } catch (...) {
        misc::ThrowFailure(kWriteTag, u"Unexpected failure when writing '" + fileName + u"'.");
    }
}

}  // namespace ArchiveDataWriter
}  // namespace tqWorkRig
