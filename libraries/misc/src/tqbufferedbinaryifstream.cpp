// The buffered file input stream.
#include "misc/tqbufferedbinaryifstream.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "misc/tqexception.h"

namespace misc {

tqBufferedBinaryIFStream::tqBufferedBinaryIFStream(const tqstring& path, std::size_t bufferSize)
    : m_path(path),
      m_file(nullptr),
      m_size(0),
      m_consumed(0),
      m_bufferSize(std::max<std::size_t>(bufferSize, 1)),
      m_begin(0),
      m_end(0) {
    const std::string narrow = to_utf8(path);
    if (narrow.find('\0') == std::string::npos) m_file = std::fopen(narrow.c_str(), "rb");
    if (m_file == nullptr)
        throw tqmiscException(u"tqBufferedBinaryIFStream::tqBufferedBinaryIFStream -> Could not open '" + path +
                              u"' for reading");
    struct stat status {};
    if (fstat(fileno(m_file), &status) != 0 || !S_ISREG(status.st_mode)) {
        std::fclose(m_file);
        throw tqmiscException(u"tqBufferedBinaryIFStream::tqBufferedBinaryIFStream -> '" + path +
                              u"' is not a regular file");
    }
    // The stream buffers itself; a second buffer inside stdio would only copy twice.
    std::setvbuf(m_file, nullptr, _IONBF, 0);
    m_size = static_cast<std::uint64_t>(status.st_size);
    m_buffer.reset(new std::uint8_t[m_bufferSize]);
}

tqBufferedBinaryIFStream::~tqBufferedBinaryIFStream() { std::fclose(m_file); }

std::uint64_t tqBufferedBinaryIFStream::Fill(std::uint8_t* destination, std::uint64_t count) {
    const std::size_t read = std::fread(destination, 1, static_cast<std::size_t>(count), m_file);
    if (read < count && std::ferror(m_file))
        throw tqmiscException(u"tqBufferedBinaryIFStream::Read -> Error while reading '" + m_path + u"'");
    return read;
}

void tqBufferedBinaryIFStream::Read(void* destination, std::uint64_t& count) {
    auto* out = static_cast<std::uint8_t*>(destination);
    std::uint64_t done = 0;
    while (done < count) {
        if (m_begin < m_end) {
            const std::size_t take = static_cast<std::size_t>(std::min<std::uint64_t>(m_end - m_begin, count - done));
            std::memcpy(out + done, m_buffer.get() + m_begin, take);
            m_begin += take;
            done += take;
            continue;
        }
        std::uint64_t got;
        if (count - done >= m_bufferSize) {
            // Large reads go straight to the caller's memory.
            got = Fill(out + done, count - done);
            done += got;
        } else {
            got = Fill(m_buffer.get(), m_bufferSize);
            m_begin = 0;
            m_end = static_cast<std::size_t>(got);
        }
        if (got == 0) break;
    }
    m_consumed += done;
    count = done;
}

bool tqBufferedBinaryIFStream::GetRemaining(std::uint64_t& remaining) const {
    remaining = m_consumed < m_size ? m_size - m_consumed : 0;
    return true;
}

}  // namespace misc
