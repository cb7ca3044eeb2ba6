// tqTPoint3d: a point or vector in space.
#pragma once

#include <cmath>

namespace cadcam {

/// Three coordinates; compared exactly, so a NaN is unequal to everything.
template <class T>
struct tqTPoint3d {
    T x{};
    T y{};
    T z{};

    constexpr tqTPoint3d() = default;
    constexpr tqTPoint3d(T x_, T y_, T z_) : x(x_), y(y_), z(z_) {}
    template <class U>
    constexpr explicit tqTPoint3d(const tqTPoint3d<U>& other)
        : x(static_cast<T>(other.x)), y(static_cast<T>(other.y)), z(static_cast<T>(other.z)) {}

    constexpr bool operator==(const tqTPoint3d& o) const { return x == o.x && y == o.y && z == o.z; }
    constexpr bool operator!=(const tqTPoint3d& o) const { return !(*this == o); }

    constexpr tqTPoint3d operator+(const tqTPoint3d& o) const { return {x + o.x, y + o.y, z + o.z}; }
    constexpr tqTPoint3d operator-(const tqTPoint3d& o) const { return {x - o.x, y - o.y, z - o.z}; }
    constexpr tqTPoint3d operator-() const { return {-x, -y, -z}; }
    constexpr tqTPoint3d operator*(T f) const { return {x * f, y * f, z * f}; }
    constexpr tqTPoint3d& operator+=(const tqTPoint3d& o) { x += o.x, y += o.y, z += o.z; return *this; }
    constexpr tqTPoint3d& operator*=(T f) { x *= f, y *= f, z *= f; return *this; }

    constexpr T Dot(const tqTPoint3d& o) const { return x * o.x + y * o.y + z * o.z; }
    constexpr tqTPoint3d Cross(const tqTPoint3d& o) const {
        return {y * o.z - z * o.y, z * o.x - x * o.z, x * o.y - y * o.x};
    }
    T Length() const { return std::sqrt(Dot(*this)); }
};

using tqPoint3d = tqTPoint3d<double>;

}  // namespace cadcam
