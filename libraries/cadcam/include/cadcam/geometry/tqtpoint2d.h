// tqTPoint2d: a point or vector in the plane.
#pragma once

#include <cmath>

namespace cadcam {

/// Two coordinates; compared exactly, so a NaN is unequal to everything.
template <class T>
struct tqTPoint2d {
    T x{};
    T y{};

    constexpr tqTPoint2d() = default;
    constexpr tqTPoint2d(T x_, T y_) : x(x_), y(y_) {}
    template <class U>
    constexpr explicit tqTPoint2d(const tqTPoint2d<U>& other) : x(static_cast<T>(other.x)), y(static_cast<T>(other.y)) {}

    constexpr bool operator==(const tqTPoint2d& o) const { return x == o.x && y == o.y; }
    constexpr bool operator!=(const tqTPoint2d& o) const { return !(*this == o); }

    constexpr tqTPoint2d operator+(const tqTPoint2d& o) const { return {x + o.x, y + o.y}; }
    constexpr tqTPoint2d operator-(const tqTPoint2d& o) const { return {x - o.x, y - o.y}; }
    constexpr tqTPoint2d operator-() const { return {-x, -y}; }
    constexpr tqTPoint2d operator*(T f) const { return {x * f, y * f}; }
    constexpr tqTPoint2d& operator+=(const tqTPoint2d& o) { x += o.x, y += o.y; return *this; }
    constexpr tqTPoint2d& operator-=(const tqTPoint2d& o) { x -= o.x, y -= o.y; return *this; }
    constexpr tqTPoint2d& operator*=(T f) { x *= f, y *= f; return *this; }

    /// The scalar product.
    constexpr T Dot(const tqTPoint2d& o) const { return x * o.x + y * o.y; }
    /// The z component of the cross product: positive when o lies counterclockwise of this.
    constexpr T Cross(const tqTPoint2d& o) const { return x * o.y - y * o.x; }
    /// The length as a vector.
    T Length() const { return std::hypot(x, y); }
    /// The distance to another point.
    T DistanceTo(const tqTPoint2d& o) const { return (o - *this).Length(); }
};

using tqPoint2d = tqTPoint2d<double>;

}  // namespace cadcam
