// tqBufferedBinaryIFStream: a buffered input stream that reads a file and knows how much of it is left.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>

#include "misc/export.h"
#include "misc/tqbinstream.h"
#include "misc/tqstring.h"

namespace misc {

/// Reads a regular file through a buffer of its own. The path reaches the file system as UTF-8.
class TQ_EXPORT tqBufferedBinaryIFStream : public tqBinInputStream {
public:
    static constexpr std::size_t kDefaultBufferSize = 1 << 16;

    /// Opens the file; a path that cannot be opened, or is no regular file, throws tqmiscException naming it.
    explicit tqBufferedBinaryIFStream(const tqstring& path, std::size_t bufferSize = kDefaultBufferSize);
    tqBufferedBinaryIFStream(const tqBufferedBinaryIFStream&) = delete;
    tqBufferedBinaryIFStream& operator=(const tqBufferedBinaryIFStream&) = delete;
    ~tqBufferedBinaryIFStream() override;

    /// Reads up to count bytes and writes the number read back into count; a failing device throws tqmiscException.
    void Read(void* destination, std::uint64_t& count) override;
    /// The file's size at opening less what has been read.
    bool GetRemaining(std::uint64_t& remaining) const override;
    /// The file's size when it was opened.
    std::uint64_t GetSize() const { return m_size; }
    const tqstring& GetPath() const { return m_path; }

private:
    std::uint64_t Fill(std::uint8_t* destination, std::uint64_t count);

    tqstring m_path;
    std::FILE* m_file;
    std::uint64_t m_size;
    std::uint64_t m_consumed;
    std::unique_ptr<std::uint8_t[]> m_buffer;
    std::size_t m_bufferSize;
    std::size_t m_begin;
    std::size_t m_end;
};

}  // namespace misc
