// UniqueTemporaryName: process, thread and OpenMP thread numbers, a count and random bits.
#include "persistence/archive/uniquename.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstdio>

#ifdef _OPENMP
#include <omp.h>
#endif

namespace tqWorkRig {
namespace detail {

namespace {

int OpenMPThreadNumber() {
#ifdef _OPENMP
    return omp_get_thread_num();
#else
    return 0;
#endif
}

/// splitmix64: spreads the clock and the count so that the name cannot be guessed from the ones before it.
std::uint64_t Mix(std::uint64_t x) {
    x += 0x9E3779B97F4A7C15ULL;
    x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9ULL;
    x = (x ^ (x >> 27)) * 0x94D049BB133111EBULL;
    return x ^ (x >> 31);
}

}  // namespace

std::string UniqueTemporaryName(const char* prefix, const char* extension) {
    static std::atomic<std::uint64_t> count{0};
    const std::uint64_t n = count.fetch_add(1, std::memory_order_relaxed);
    const auto now = static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
    const long pid = static_cast<long>(getpid());
    const long tid = static_cast<long>(syscall(SYS_gettid));
    const std::uint64_t noise =
        Mix(now ^ Mix(n) ^ (static_cast<std::uint64_t>(tid) << 32) ^ reinterpret_cast<std::uintptr_t>(&n));
    char middle[128];
    std::snprintf(middle, sizeof middle, "%ld-%ld-%d-%llu-%016llx", pid, tid, OpenMPThreadNumber(),
                  static_cast<unsigned long long>(n), static_cast<unsigned long long>(noise));
    return std::string(prefix) + middle + extension;
}

}  // namespace detail
}  // namespace tqWorkRig
