// tqBinaryOFStream: a buffered output stream that writes a file.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>

#include "misc/export.h"
#include "misc/tqbinstream.h"
#include "misc/tqstring.h"

namespace misc {

/// Writes a file through a buffer of its own; an existing file is replaced. The path reaches the file
/// system as UTF-8. Call Close to learn whether the last bytes reached the disk: the destructor closes
/// silently.
class TQ_EXPORT tqBinaryOFStream : public tqBinOutputStream {
public:
    static constexpr std::size_t kDefaultBufferSize = 1 << 16;

    /// Creates the file; failure throws tqmiscException naming the path.
    explicit tqBinaryOFStream(const tqstring& path, std::size_t bufferSize = kDefaultBufferSize);
    tqBinaryOFStream(const tqBinaryOFStream&) = delete;
    tqBinaryOFStream& operator=(const tqBinaryOFStream&) = delete;
    ~tqBinaryOFStream() override;

    /// Writes count bytes; a failing device, or a closed stream, throws tqmiscException.
    void Write(const void* source, std::uint64_t count) override;
    /// Hands the buffered bytes to the file system.
    void Flush();
    /// Flushes and closes the file; failure throws tqmiscException. Closing twice does nothing.
    void Close();
    bool IsOpen() const { return m_file != nullptr; }
    const tqstring& GetPath() const { return m_path; }

private:
    void WriteThrough(const void* source, std::size_t count);

    tqstring m_path;
    std::FILE* m_file;
    std::unique_ptr<std::uint8_t[]> m_buffer;
    std::size_t m_bufferSize;
    std::size_t m_used;
};

}  // namespace misc
