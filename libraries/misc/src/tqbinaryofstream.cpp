// The buffered file output stream.
#include "misc/tqbinaryofstream.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "misc/tqexception.h"

namespace misc {

tqBinaryOFStream::tqBinaryOFStream(const tqstring& path, std::size_t bufferSize)
    : m_path(path), m_file(nullptr), m_bufferSize(std::max<std::size_t>(bufferSize, 1)), m_used(0) {
    const std::string narrow = to_utf8(path);
    if (narrow.find('\0') == std::string::npos) m_file = std::fopen(narrow.c_str(), "wb");
    if (m_file == nullptr)
        throw tqmiscException(u"tqBinaryOFStream::tqBinaryOFStream -> Could not create '" + path + u"'");
    // The stream buffers itself; a second buffer inside stdio would only copy twice.
    std::setvbuf(m_file, nullptr, _IONBF, 0);
    m_buffer.reset(new std::uint8_t[m_bufferSize]);
}

tqBinaryOFStream::~tqBinaryOFStream() {
    if (m_file == nullptr) return;
    // A destructor must not throw: whoever needs to know calls Close.
    if (m_used > 0) std::fwrite(m_buffer.get(), 1, m_used, m_file);
    std::fclose(m_file);
}

void tqBinaryOFStream::WriteThrough(const void* source, std::size_t count) {
    if (std::fwrite(source, 1, count, m_file) != count)
        throw tqmiscException(u"tqBinaryOFStream::Write -> Error while writing '" + m_path + u"'");
}

void tqBinaryOFStream::Write(const void* source, std::uint64_t count) {
    if (m_file == nullptr) throw tqmiscException(u"tqBinaryOFStream::Write -> '" + m_path + u"' is closed");
    if (count == 0) return;
    const auto* in = static_cast<const std::uint8_t*>(source);
    if (m_used + count <= m_bufferSize) {
        std::memcpy(m_buffer.get() + m_used, in, static_cast<std::size_t>(count));
        m_used += static_cast<std::size_t>(count);
        return;
    }
    Flush();
    if (count >= m_bufferSize) {
        WriteThrough(in, static_cast<std::size_t>(count));
    } else {
        std::memcpy(m_buffer.get(), in, static_cast<std::size_t>(count));
        m_used = static_cast<std::size_t>(count);
    }
}

void tqBinaryOFStream::Flush() {
    if (m_file == nullptr || m_used == 0) return;
    const std::size_t used = m_used;
    m_used = 0;
    WriteThrough(m_buffer.get(), used);
}

void tqBinaryOFStream::Close() {
    if (m_file == nullptr) return;
    bool failed = false;
    try {
        Flush();
    } catch (const tqmiscException&) {
        failed = true;
    }
    failed = std::fclose(m_file) != 0 || failed;
    m_file = nullptr;
    if (failed) throw tqmiscException(u"tqBinaryOFStream::Close -> Error while closing '" + m_path + u"'");
}

}  // namespace misc
