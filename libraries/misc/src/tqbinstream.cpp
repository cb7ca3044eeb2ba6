// The binary stream bases.
#include "misc/tqbinstream.h"

namespace misc {

tqBinStream::~tqBinStream() = default;

bool tqBinInputStream::GetRemaining(std::uint64_t&) const { return false; }

bool tqPresetIOStream::GetRemaining(std::uint64_t& remaining) const {
    const std::uint64_t size = GetSize(), position = GetPosition();
    remaining = position < size ? size - position : 0;
    return true;
}

}  // namespace misc
