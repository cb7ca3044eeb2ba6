// Zip file-function tables: the real path travels in the opaque slot as UTF-8, so any path reaches the file system
// unchanged. The reading side serves one regular file; the writing side fills a new sibling of the target.
#pragma once

#include <minizip/ioapi.h>
#include <sys/types.h>

#include <cstdint>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>

namespace tqWorkRig {
namespace detail {

/// The path minizip is given; the real one is in the table's opaque slot.
constexpr const char* kZipDummyPath = "This can be anything";

/// A regular file read through pread and a buffer of its own. Anything else (a folder, a pipe, a device) fails
/// to open, so a hostile path cannot block or feed endless bytes.
class ZipReadSource {
public:
    explicit ZipReadSource(std::string path);
    ZipReadSource(const ZipReadSource&) = delete;
    ZipReadSource& operator=(const ZipReadSource&) = delete;
    ~ZipReadSource();

    /// The table to hand to unzOpen2_64 with kZipDummyPath.
    zlib_filefunc64_def* GetFunctions() { return &m_functions; }
    /// Reads up to count bytes at offset; returns the number read, short at the end; false on a device error.
    bool ReadAt(std::uint64_t offset, void* destination, std::size_t count, std::size_t& read);
    /// The file's size when it was opened.
    std::uint64_t GetSize() const { return m_size; }

private:
    static voidpf Open(voidpf opaque, const void* filename, int mode);
    static uLong Read(voidpf opaque, voidpf stream, void* buffer, uLong size);
    static uLong Write(voidpf opaque, voidpf stream, const void* buffer, uLong size);
    static ZPOS64_T Tell(voidpf opaque, voidpf stream);
    static long Seek(voidpf opaque, voidpf stream, ZPOS64_T offset, int origin);
    static int Close(voidpf opaque, voidpf stream);
    static int Error(voidpf opaque, voidpf stream);

    std::string m_path;
    zlib_filefunc64_def m_functions;
    int m_fd = -1;
    std::uint64_t m_size = 0;
    std::uint64_t m_position = 0;
    bool m_failed = false;
    // Read-ahead for minizip's small header reads.
    std::unique_ptr<unsigned char[]> m_buffer;
    std::uint64_t m_bufferStart = 0;
    std::size_t m_bufferFill = 0;
};

/// The file a save writes: a sibling of the target, created exclusively (a planted file or link at its name is
/// never followed), that replaces the target by a rename only when Commit is called. Until then the target is
/// untouched; an uncommitted sibling is removed by the destructor.
class ZipWriteTarget {
public:
    /// Gives the sibling's file name; tests replace it to plant files at known names.
    using NameSource = std::function<std::string()>;

    /// target as UTF-8; a symbolic link there is followed, as writing through it in place would.
    explicit ZipWriteTarget(const std::string& target, NameSource names = NameSource());
    ZipWriteTarget(const ZipWriteTarget&) = delete;
    ZipWriteTarget& operator=(const ZipWriteTarget&) = delete;
    ~ZipWriteTarget();

    /// The table to hand to zipOpen2_64 with kZipDummyPath.
    zlib_filefunc64_def* GetFunctions() { return &m_functions; }
    /// Makes the next close flush the sibling's data to the device before it is renamed.
    void SetSyncOnClose(bool sync) { m_syncOnClose = sync; }
    /// Renames the closed sibling over the target; false (and the sibling removed) when that fails.
    bool Commit();
    /// The sibling's path while it exists, empty otherwise.
    const std::string& GetSiblingPath() const { return m_sibling; }

private:
    static voidpf Open(voidpf opaque, const void* filename, int mode);
    static uLong Read(voidpf opaque, voidpf stream, void* buffer, uLong size);
    static uLong Write(voidpf opaque, voidpf stream, const void* buffer, uLong size);
    static ZPOS64_T Tell(voidpf opaque, voidpf stream);
    static long Seek(voidpf opaque, voidpf stream, ZPOS64_T offset, int origin);
    static int Close(voidpf opaque, voidpf stream);
    static int Error(voidpf opaque, voidpf stream);

    std::FILE* OpenSibling();
    void RemoveSibling();

    std::string m_target;
    std::string m_folder;
    NameSource m_names;
    zlib_filefunc64_def m_functions;
    std::string m_sibling;
    std::FILE* m_file = nullptr;
    bool m_syncOnClose = false;
    bool m_closeFailed = false;
};

}  // namespace detail
}  // namespace tqWorkRig
