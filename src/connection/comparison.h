// Helpers of the connection classes' equality: the comparison flag's scope and the null rule for pointers.
#pragma once

#include "misc/tqautopointer.h"

namespace tqWorkRig {
namespace detail_ {

/// Sets a comparison flag for a scope and clears it on every way out, exceptions included.
class FlagScope {
public:
    explicit FlagScope(bool& flag) : m_flag(flag) { m_flag = true; }
    ~FlagScope() { m_flag = false; }
    FlagScope(const FlagScope&) = delete;
    FlagScope& operator=(const FlagScope&) = delete;

private:
    bool& m_flag;
};

/// Two nulls are equal, one null is not, else the pointees' own operator== decides.
template <class T>
bool PointeesEqual(const misc::tqAutoPointer<T>& left, const misc::tqAutoPointer<T>& right) {
    if (left.IsNull() || right.IsNull()) return left.IsNull() && right.IsNull();
    return *left == *right;
}

}  // namespace detail_
}  // namespace tqWorkRig
