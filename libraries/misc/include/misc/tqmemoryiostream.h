// tqMemoryIOStream: a readable, writable and seekable stream over a block of memory that it owns or is lent.
#pragma once

#include <cstdint>

#include "misc/export.h"
#include "misc/tqbinstream.h"

namespace misc {

/// Bytes in memory with one position for reading and writing. An owning stream grows as writes need,
/// linearly by the increase step for its first twenty growths and geometrically after that; an attached
/// stream works on memory the caller lends it and never grows. Every failure leaves the stream as it was.
class TQ_EXPORT tqMemoryIOStream : public tqPresetIOStream {
public:
    /// Capacity of a stream made without one.
    static constexpr std::uint64_t kDefaultCapacity = 1024;
    /// Linear growth step until SetIncreaseStep: 64 KiB, so small payloads never grow and large ones grow
    /// in few copies before the geometric phase takes over.
    static constexpr std::uint64_t kDefaultIncreaseStep = 65536;

    /// An empty owning stream; a capacity of 0 throws tqException.
    explicit tqMemoryIOStream(std::uint64_t initialCapacity = kDefaultCapacity);
    /// An attached stream over capacity bytes at memory, of which the first size are valid; the caller keeps
    /// the memory alive and owns it. size above capacity, or null memory with a capacity, throws tqException.
    tqMemoryIOStream(void* memory, std::uint64_t capacity, std::uint64_t size);
    /// A deep copy that owns its bytes, also of an attached stream; position and increase step are kept.
    tqMemoryIOStream(const tqMemoryIOStream& other);
    /// Takes the other's memory; the other is left empty, owning, with no memory.
    tqMemoryIOStream(tqMemoryIOStream&& other) noexcept;
    tqMemoryIOStream& operator=(const tqMemoryIOStream& other);
    tqMemoryIOStream& operator=(tqMemoryIOStream&& other) noexcept;
    ~tqMemoryIOStream() override;

    /// Copies up to count bytes from the position on and writes the number copied back into count.
    void Read(void* destination, std::uint64_t& count) override;
    /// Copies count bytes in at the position, growing an owning stream as needed.
    void Write(const void* source, std::uint64_t count) override;
    /// Moves the position; above the size throws tqIdxRangeException<uint64_t> (limit size - 1, index position).
    void Seek(std::uint64_t position) override;
    std::uint64_t GetPosition() const override { return m_position; }
    std::uint64_t GetSize() const override { return m_size; }

    /// Sets the linear growth step; 0 throws tqException.
    void SetIncreaseStep(std::uint64_t newIncreaseStep);
    std::uint64_t GetIncreaseStep() const { return m_increaseStep; }
    /// Bytes allocated (or lent, for an attached stream).
    std::uint64_t GetCapacity() const { return m_capacity; }
    /// How often the buffer has been reallocated.
    std::uint64_t GetGrowthCount() const { return m_growthCount; }
    /// True when the stream works on lent memory and must not grow.
    bool IsAttached() const { return m_attached; }
    /// The storage; the first GetSize() bytes are valid. Null for a stream without memory.
    std::uint8_t* GetBuffer() { return m_buffer; }
    const std::uint8_t* GetBuffer() const { return m_buffer; }

private:
    void Grow(std::uint64_t needed);
    void Swap(tqMemoryIOStream& other) noexcept;

    std::uint64_t m_increaseStep;
    std::uint64_t m_size;
    std::uint64_t m_capacity;
    std::uint8_t* m_buffer;
    std::uint64_t m_position;
    bool m_attached;
    std::uint64_t m_growthCount;
};

}  // namespace misc
