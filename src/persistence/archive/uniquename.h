// UniqueTemporaryName: file names that parallel savers in one or many processes do not share.
#pragma once

#include <string>

namespace tqWorkRig {
namespace detail {

/// prefix + process id, thread id and OpenMP thread number (0 without OpenMP) + a per-process count and random
/// bits + extension. Unique enough to rarely collide; callers still create the file exclusively.
std::string UniqueTemporaryName(const char* prefix, const char* extension);

}  // namespace detail
}  // namespace tqWorkRig
