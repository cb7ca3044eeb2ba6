// The in-memory binary stream: growth, reading, writing and seeking.
#include "misc/tqmemoryiostream.h"

#include <cstring>
#include <limits>
#include <new>
#include <utility>

#include "misc/tqexception.h"

namespace misc {

namespace {

constexpr std::uint64_t kMaxSize = std::numeric_limits<std::uint64_t>::max();
// The first twenty growths are linear; later ones double, so a stream that keeps growing copies O(n) bytes.
constexpr std::uint64_t kLinearGrowths = 20;
constexpr std::uint64_t kFirstGeometricCapacity = 2048;

std::uint8_t* Allocate(std::uint64_t bytes, const char* where) {
    std::uint8_t* memory = bytes <= std::numeric_limits<std::size_t>::max()
                               ? new (std::nothrow) std::uint8_t[static_cast<std::size_t>(bytes)]
                               : nullptr;
    if (memory == nullptr)
        throw tqMemoryException(tqstring(where) + " -> Not enough memory for " +
                                to_tqstring(static_cast<unsigned long long>(bytes)) + " bytes");
    return memory;
}

}  // namespace

tqMemoryIOStream::tqMemoryIOStream(std::uint64_t initialCapacity)
    : m_increaseStep(kDefaultIncreaseStep),
      m_size(0),
      m_capacity(0),
      m_buffer(nullptr),
      m_position(0),
      m_attached(false),
      m_growthCount(0) {
    if (initialCapacity == 0)
        ThrowFailure(u"tqMemoryIOStream::tqMemoryIOStream - initialCapacity should be greater than zero");
    m_buffer = Allocate(initialCapacity, "tqMemoryIOStream::tqMemoryIOStream");
    m_capacity = initialCapacity;
}

tqMemoryIOStream::tqMemoryIOStream(void* memory, std::uint64_t capacity, std::uint64_t size)
    : m_increaseStep(kDefaultIncreaseStep),
      m_size(size),
      m_capacity(capacity),
      m_buffer(static_cast<std::uint8_t*>(memory)),
      m_position(0),
      m_attached(true),
      m_growthCount(0) {
    if (size > capacity) ThrowFailure(u"tqMemoryIOStream::tqMemoryIOStream - size should not exceed capacity");
    if (memory == nullptr && capacity != 0)
        ThrowFailure(u"tqMemoryIOStream::tqMemoryIOStream - attached memory should not be null");
}

tqMemoryIOStream::tqMemoryIOStream(const tqMemoryIOStream& other)
    : tqBinStream(other),
      tqPresetIOStream(other),
      m_increaseStep(other.m_increaseStep),
      m_size(other.m_size),
      m_capacity(other.m_size > 0 ? other.m_size : 1),
      m_buffer(nullptr),
      m_position(other.m_position),
      m_attached(false),
      m_growthCount(0) {
    m_buffer = Allocate(m_capacity, "tqMemoryIOStream::tqMemoryIOStream");
    if (m_size > 0) std::memcpy(m_buffer, other.m_buffer, static_cast<std::size_t>(m_size));
}

tqMemoryIOStream::tqMemoryIOStream(tqMemoryIOStream&& other) noexcept
    : m_increaseStep(other.m_increaseStep),
      m_size(other.m_size),
      m_capacity(other.m_capacity),
      m_buffer(other.m_buffer),
      m_position(other.m_position),
      m_attached(other.m_attached),
      m_growthCount(other.m_growthCount) {
    other.m_size = other.m_capacity = other.m_position = other.m_growthCount = 0;
    other.m_buffer = nullptr;
    other.m_attached = false;
}

tqMemoryIOStream& tqMemoryIOStream::operator=(const tqMemoryIOStream& other) {
    if (this != &other) {
        tqMemoryIOStream copy(other);
        Swap(copy);
    }
    return *this;
}

tqMemoryIOStream& tqMemoryIOStream::operator=(tqMemoryIOStream&& other) noexcept {
    if (this != &other) {
        tqMemoryIOStream taken(std::move(other));
        Swap(taken);
    }
    return *this;
}

tqMemoryIOStream::~tqMemoryIOStream() {
    if (!m_attached) delete[] m_buffer;
}

void tqMemoryIOStream::Swap(tqMemoryIOStream& other) noexcept {
    std::swap(m_increaseStep, other.m_increaseStep);
    std::swap(m_size, other.m_size);
    std::swap(m_capacity, other.m_capacity);
    std::swap(m_buffer, other.m_buffer);
    std::swap(m_position, other.m_position);
    std::swap(m_attached, other.m_attached);
    std::swap(m_growthCount, other.m_growthCount);
}

void tqMemoryIOStream::Read(void* destination, std::uint64_t& count) {
    const std::uint64_t available = m_size - m_position;
    if (count > available) count = available;
    if (count == 0) return;
    std::memcpy(destination, m_buffer + m_position, static_cast<std::size_t>(count));
    m_position += count;
}

void tqMemoryIOStream::Write(const void* source, std::uint64_t count) {
    if (count == 0) return;
    TQ_ASSERT(source != nullptr);
    if (count > kMaxSize - m_position)
        throw tqMemoryException(u"tqMemoryIOStream::Write -> Stream size would exceed 64 bits");
    const std::uint64_t end = m_position + count;
    if (end > m_capacity) {
        if (m_attached) ThrowFailure(u"tqMemoryIOStream::Write -> Attempt to write beyond attached memory!");
        Grow(end);
    }
    std::memcpy(m_buffer + m_position, source, static_cast<std::size_t>(count));
    m_position = end;
    if (end > m_size) m_size = end;
}

void tqMemoryIOStream::Grow(std::uint64_t needed) {
    std::uint64_t capacity;
    if (m_growthCount < kLinearGrowths) {
        const std::uint64_t steps = (needed - m_capacity) / m_increaseStep * m_increaseStep;
        capacity = m_capacity + steps;
        capacity = capacity > kMaxSize - m_increaseStep ? needed : capacity + m_increaseStep;
    } else {
        const auto twice = [needed](std::uint64_t c) { return c > kMaxSize / 2 ? needed : c * 2; };
        capacity = m_capacity == 0 ? kFirstGeometricCapacity : twice(m_capacity);
        while (capacity < needed) capacity = twice(capacity);
    }
    std::uint8_t* buffer = Allocate(capacity, "tqMemoryIOStream::Write");
    if (m_size > 0) std::memcpy(buffer, m_buffer, static_cast<std::size_t>(m_size));
    delete[] m_buffer;
    m_buffer = buffer;
    m_capacity = capacity;
    ++m_growthCount;
}

void tqMemoryIOStream::Seek(std::uint64_t position) {
    if (position > m_size)
        throw tqIdxRangeException<std::uint64_t>(u"tqMemoryIOStream::Seek -> Position beyond the end of the stream",
                                                 m_size - 1, position);
    m_position = position;
}

void tqMemoryIOStream::SetIncreaseStep(std::uint64_t newIncreaseStep) {
    if (newIncreaseStep == 0)
        ThrowFailure(u"tqMemoryIOStream::SetIncreaseStep - newIncreaseStep should be greater than zero");
    m_increaseStep = newIncreaseStep;
}

}  // namespace misc
