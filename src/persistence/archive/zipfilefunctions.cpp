// Zip file-function tables over POSIX files: pread with a read-ahead for reading, an exclusive sibling for writing.
#include "persistence/archive/zipfilefunctions.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <vector>

#include "persistence/archive/uniquename.h"

namespace tqWorkRig {
namespace detail {

namespace {

constexpr std::size_t kReadAhead = 1 << 16;
constexpr std::size_t kLargestRead = std::size_t(1) << 30;
// As many links as the kernel follows before it gives up with ELOOP.
constexpr int kMaxLinkHops = 40;

int SeekOrigin(int origin) {
    switch (origin) {
        case ZLIB_FILEFUNC_SEEK_CUR:
            return SEEK_CUR;
        case ZLIB_FILEFUNC_SEEK_END:
            return SEEK_END;
        default:
            return SEEK_SET;
    }
}

std::string FolderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) return ".";
    if (slash == 0) return "/";
    return path.substr(0, slash);
}

/// Follows symbolic links the way opening the path would, so the sibling lands beside the file really written.
std::string ResolveLinks(std::string path) {
    for (int hop = 0; hop < kMaxLinkHops; ++hop) {
        struct stat st;
        if (lstat(path.c_str(), &st) != 0 || !S_ISLNK(st.st_mode)) return path;
        std::vector<char> link(static_cast<std::size_t>(std::max<off_t>(st.st_size, 0)) + 256);
        const ssize_t length = readlink(path.c_str(), link.data(), link.size());
        if (length <= 0 || static_cast<std::size_t>(length) >= link.size()) return path;
        const std::string target(link.data(), static_cast<std::size_t>(length));
        if (target[0] == '/' || path.find('/') == std::string::npos)
            path = target;
        else
            path = path.substr(0, path.rfind('/') + 1) + target;
    }
    return path;
}

}  // namespace

// ---- reading ----

ZipReadSource::ZipReadSource(std::string path) : m_path(std::move(path)), m_functions() {
    m_functions.zopen64_file = &ZipReadSource::Open;
    m_functions.zread_file = &ZipReadSource::Read;
    m_functions.zwrite_file = &ZipReadSource::Write;
    m_functions.ztell64_file = &ZipReadSource::Tell;
    m_functions.zseek64_file = &ZipReadSource::Seek;
    m_functions.zclose_file = &ZipReadSource::Close;
    m_functions.zerror_file = &ZipReadSource::Error;
    m_functions.opaque = this;
}

ZipReadSource::~ZipReadSource() {
    if (m_fd >= 0) close(m_fd);
}

voidpf ZipReadSource::Open(voidpf opaque, const void*, int mode) {
    auto* self = static_cast<ZipReadSource*>(opaque);
    if ((mode & ZLIB_FILEFUNC_MODE_READWRITEFILTER) != ZLIB_FILEFUNC_MODE_READ || self->m_fd >= 0) return nullptr;
    // Non-blocking, so that a pipe at the path cannot stall the open; only regular files are served.
    const int fd = open(self->m_path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    if (fd < 0) return nullptr;
    struct stat st;
    if (fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
        close(fd);
        return nullptr;
    }
    self->m_buffer.reset(new (std::nothrow) unsigned char[kReadAhead]);
    if (!self->m_buffer) {
        close(fd);
        return nullptr;
    }
    self->m_fd = fd;
    self->m_size = static_cast<std::uint64_t>(st.st_size);
    self->m_position = 0;
    self->m_bufferFill = 0;
    self->m_failed = false;
    return self;
}

bool ZipReadSource::ReadAt(std::uint64_t offset, void* destination, std::size_t count, std::size_t& read) {
    auto* out = static_cast<unsigned char*>(destination);
    read = 0;
    while (count > 0) {
        if (offset >= m_bufferStart && offset - m_bufferStart < m_bufferFill) {
            const auto at = static_cast<std::size_t>(offset - m_bufferStart);
            const std::size_t n = std::min(count, m_bufferFill - at);
            std::memcpy(out, m_buffer.get() + at, n);
            out += n, offset += n, count -= n, read += n;
            continue;
        }
        const bool direct = count >= kReadAhead;
        const ssize_t got = direct ? pread(m_fd, out, std::min(count, kLargestRead), static_cast<off_t>(offset))
                                   : pread(m_fd, m_buffer.get(), kReadAhead, static_cast<off_t>(offset));
        if (got < 0) {
            if (errno == EINTR) continue;
            m_failed = true;
            return false;
        }
        if (got == 0) break;
        if (direct) {
            const auto n = static_cast<std::size_t>(got);
            out += n, offset += n, count -= n, read += n;
        } else {
            m_bufferStart = offset;
            m_bufferFill = static_cast<std::size_t>(got);
        }
    }
    return true;
}

uLong ZipReadSource::Read(voidpf opaque, voidpf, void* buffer, uLong size) {
    auto* self = static_cast<ZipReadSource*>(opaque);
    std::size_t read = 0;
    self->ReadAt(self->m_position, buffer, size, read);
    self->m_position += read;
    return static_cast<uLong>(read);
}

uLong ZipReadSource::Write(voidpf, voidpf, const void*, uLong) { return 0; }

ZPOS64_T ZipReadSource::Tell(voidpf opaque, voidpf) { return static_cast<ZipReadSource*>(opaque)->m_position; }

long ZipReadSource::Seek(voidpf opaque, voidpf, ZPOS64_T offset, int origin) {
    auto* self = static_cast<ZipReadSource*>(opaque);
    const std::uint64_t base = origin == ZLIB_FILEFUNC_SEEK_CUR   ? self->m_position
                               : origin == ZLIB_FILEFUNC_SEEK_END ? self->m_size
                                                                  : 0;
    // minizip passes backward moves as wrapped unsigned numbers.
    const std::uint64_t position = base + offset;
    if (origin != ZLIB_FILEFUNC_SEEK_SET && static_cast<std::int64_t>(offset) < 0 && position > base) return -1;
    self->m_position = position;
    return 0;
}

int ZipReadSource::Close(voidpf opaque, voidpf) {
    auto* self = static_cast<ZipReadSource*>(opaque);
    const int result = close(self->m_fd);
    self->m_fd = -1;
    return result == 0 ? 0 : -1;
}

int ZipReadSource::Error(voidpf opaque, voidpf) { return static_cast<ZipReadSource*>(opaque)->m_failed ? 1 : 0; }

// ---- writing ----

ZipWriteTarget::ZipWriteTarget(const std::string& target, NameSource names)
    : m_target(ResolveLinks(target)), m_folder(FolderOf(m_target)), m_names(std::move(names)), m_functions() {
    m_functions.zopen64_file = &ZipWriteTarget::Open;
    m_functions.zread_file = &ZipWriteTarget::Read;
    m_functions.zwrite_file = &ZipWriteTarget::Write;
    m_functions.ztell64_file = &ZipWriteTarget::Tell;
    m_functions.zseek64_file = &ZipWriteTarget::Seek;
    m_functions.zclose_file = &ZipWriteTarget::Close;
    m_functions.zerror_file = &ZipWriteTarget::Error;
    m_functions.opaque = this;
}

ZipWriteTarget::~ZipWriteTarget() {
    if (m_file != nullptr) std::fclose(m_file);
    RemoveSibling();
}

std::FILE* ZipWriteTarget::OpenSibling() {
    // No name, or a folder's name: nothing could be created there.
    if (m_target.empty() || m_target.back() == '/') return nullptr;
    // The target must be a file this user may write, as an in-place save would need; it is opened without
    // truncation, so it stays as it is.
    struct stat existing;
    const bool exists = stat(m_target.c_str(), &existing) == 0;
    if (exists) {
        if (!S_ISREG(existing.st_mode)) return nullptr;
        const int probe = open(m_target.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
        if (probe < 0) return nullptr;
        close(probe);
    }
    int fd = -1;
    std::string path;
    for (int attempt = 0; attempt < 100 && fd < 0; ++attempt) {
        path = m_folder + "/" + (m_names ? m_names() : UniqueTemporaryName(".wr-", ".tmp"));
        fd = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW | O_NOCTTY, exists ? 0600 : 0666);
        if (fd < 0 && errno != EEXIST) return nullptr;
    }
    if (fd < 0) return nullptr;
    m_sibling = path;
    if (exists) {
        // The replacement keeps the owner (where allowed) and the permission bits of the file it replaces.
        if (fchown(fd, existing.st_uid, existing.st_gid) != 0) {
        }
        if (fchmod(fd, existing.st_mode & 0777) != 0) {
        }
    }
    std::FILE* file = fdopen(fd, "wb");
    if (file == nullptr) {
        close(fd);
        RemoveSibling();
    }
    return file;
}

void ZipWriteTarget::RemoveSibling() {
    if (m_sibling.empty()) return;
    unlink(m_sibling.c_str());
    m_sibling.clear();
}

bool ZipWriteTarget::Commit() {
    if (m_file != nullptr || m_sibling.empty() || m_closeFailed) {
        RemoveSibling();
        return false;
    }
    if (std::rename(m_sibling.c_str(), m_target.c_str()) != 0) {
        RemoveSibling();
        return false;
    }
    m_sibling.clear();
    return true;
}

voidpf ZipWriteTarget::Open(voidpf opaque, const void*, int) {
    auto* self = static_cast<ZipWriteTarget*>(opaque);
    if (self->m_file != nullptr || !self->m_sibling.empty()) return nullptr;
    // Nothing may unwind through minizip's C frames.
    try {
        self->m_file = self->OpenSibling();
    } catch (...) {
        self->RemoveSibling();
        self->m_file = nullptr;
    }
    return self->m_file;
}

uLong ZipWriteTarget::Read(voidpf, voidpf stream, void* buffer, uLong size) {
    return static_cast<uLong>(std::fread(buffer, 1, size, static_cast<std::FILE*>(stream)));
}

uLong ZipWriteTarget::Write(voidpf, voidpf stream, const void* buffer, uLong size) {
    return static_cast<uLong>(std::fwrite(buffer, 1, size, static_cast<std::FILE*>(stream)));
}

ZPOS64_T ZipWriteTarget::Tell(voidpf, voidpf stream) {
    return static_cast<ZPOS64_T>(ftello(static_cast<std::FILE*>(stream)));
}

long ZipWriteTarget::Seek(voidpf, voidpf stream, ZPOS64_T offset, int origin) {
    return fseeko(static_cast<std::FILE*>(stream), static_cast<off_t>(offset), SeekOrigin(origin)) == 0 ? 0 : -1;
}

int ZipWriteTarget::Close(voidpf opaque, voidpf stream) {
    auto* self = static_cast<ZipWriteTarget*>(opaque);
    auto* file = static_cast<std::FILE*>(stream);
    bool ok = std::fflush(file) == 0;
    if (ok && self->m_syncOnClose) ok = fsync(fileno(file)) == 0;
    ok = std::fclose(file) == 0 && ok;
    self->m_file = nullptr;
    self->m_closeFailed = !ok;
    return ok ? 0 : -1;
}

int ZipWriteTarget::Error(voidpf, voidpf stream) { return std::ferror(static_cast<std::FILE*>(stream)); }

}  // namespace detail
}  // namespace tqWorkRig
