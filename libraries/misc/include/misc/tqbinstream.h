// The binary stream family: a virtual base, an input side, an output side and their join.
#pragma once

#include <cstdint>

#include "misc/export.h"

namespace misc {

/// Common virtual base of every binary stream.
class TQ_EXPORT tqBinStream {
public:
    virtual ~tqBinStream();
};

/// A source of bytes.
class TQ_EXPORT tqBinInputStream : public virtual tqBinStream {
public:
    /// Reads up to count bytes into destination and writes the number read back into count; a short read is no failure.
    virtual void Read(void* destination, std::uint64_t& count) = 0;
    /// Bytes left to read, when the stream knows it; false otherwise.
    virtual bool GetRemaining(std::uint64_t& remaining) const;
};

/// A sink of bytes.
class TQ_EXPORT tqBinOutputStream : public virtual tqBinStream {
public:
    /// Writes count bytes from source, or throws.
    virtual void Write(const void* source, std::uint64_t count) = 0;
};

/// A stream that reads and writes.
class TQ_EXPORT tqBinIOStream : public tqBinInputStream, public tqBinOutputStream {};

/// A readable and writable stream with one position over a known size.
class TQ_EXPORT tqPresetIOStream : public tqBinIOStream {
public:
    virtual void Seek(std::uint64_t position) = 0;
    virtual std::uint64_t GetPosition() const = 0;
    virtual std::uint64_t GetSize() const = 0;
    bool GetRemaining(std::uint64_t& remaining) const override;
};

}  // namespace misc
