// tqMatrix: comparison, products, point transforms, determinant and inverse; instantiated for double 4x4 and 3x3.
#include "cadcam/geometry/tqmatrix.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

#include "cadcam/geometry/tqangle.h"
#include "cadcam/geometry/tqmathexception.h"

namespace cadcam {

namespace detail_ {

void ThrowMatrixIndex(std::size_t limit, std::size_t index) {
    throw misc::tqIdxRangeException<std::uint64_t>(u"Matrix index out of range", limit, index);
}

}  // namespace detail_

namespace {

constexpr bool IsPlacement(std::size_t rows, std::size_t columns) { return rows == 4 && columns == 4; }
constexpr bool IsLinear3d(std::size_t rows, std::size_t columns) { return rows == 3 && columns == 3; }

}  // namespace

template <class T, std::size_t R, std::size_t C>
tqMatrix<T, R, C>::tqMatrix(const T (&values)[R * C]) {
    for (std::size_t i = 0; i < R * C; ++i) m_values[i] = values[i];
}

template <class T, std::size_t R, std::size_t C>
tqMatrix<T, R, C> tqMatrix<T, R, C>::Translation(T x, T y, T z) {
    if (!IsPlacement(R, C))
        throw tqMathException(tqMathException::InvalidMatrixParameters, u"a translation needs a 4 by 4 matrix");
    tqMatrix m;
    m.m_values[3] = x;
    m.m_values[7] = y;
    m.m_values[11] = z;
    return m;
}

template <class T, std::size_t R, std::size_t C>
tqMatrix<T, R, C> tqMatrix<T, R, C>::Rotation(const tqTPoint3d<T>& axis, T degrees) {
    if (!IsPlacement(R, C) && !IsLinear3d(R, C))
        throw tqMathException(tqMathException::InvalidMatrixParameters, u"a rotation needs a 3 by 3 or 4 by 4 matrix");
    const T length = axis.Length();
    if (!(length > 0) || !std::isfinite(length))
        throw tqMathException(tqMathException::InvalidVectorParameters, u"the rotation axis has no direction");
    const tqTPoint3d<T> u = axis * (static_cast<T>(1) / length);
    T s, c;
    tqSinCosDegrees(degrees, s, c);
    const T t = static_cast<T>(1) - c;
    // Rodrigues' formula, written out so that a rotation by a quarter turn about a main axis stays exact.
    const T r[3][3] = {{c + u.x * u.x * t, u.x * u.y * t - u.z * s, u.x * u.z * t + u.y * s},
                       {u.y * u.x * t + u.z * s, c + u.y * u.y * t, u.y * u.z * t - u.x * s},
                       {u.z * u.x * t - u.y * s, u.z * u.y * t + u.x * s, c + u.z * u.z * t}};
    tqMatrix m;
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j) m.m_values[i * C + j] = r[i][j];
    return m;
}

template <class T, std::size_t R, std::size_t C>
bool tqMatrix<T, R, C>::operator==(const tqMatrix& other) const {
    for (std::size_t i = 0; i < R * C; ++i)
        if (!(m_values[i] == other.m_values[i])) return false;
    return true;
}

template <class T, std::size_t R, std::size_t C>
bool tqMatrix<T, R, C>::IsIdentity(T tolerance) const {
    const tqMatrix identity;
    for (std::size_t i = 0; i < R * C; ++i)
        if (!(std::fabs(m_values[i] - identity.m_values[i]) <= tolerance)) return false;
    return true;
}

template <class T, std::size_t R, std::size_t C>
tqMatrix<T, R, C>& tqMatrix<T, R, C>::operator*=(const tqMatrix& other) {
    if constexpr (R == C) {
        *this = *this * other;
        return *this;
    } else {
        throw tqMathException(tqMathException::IncompatibleMatrixPair, u"in-place product needs square matrices");
    }
}

template <class T, std::size_t R, std::size_t C>
tqTPoint3d<T> tqMatrix<T, R, C>::operator*(const tqTPoint3d<T>& p) const {
    if constexpr (IsPlacement(R, C)) {
        const T* m = m_values;
        const tqTPoint3d<T> moved(m[0] * p.x + m[1] * p.y + m[2] * p.z + m[3],
                                  m[4] * p.x + m[5] * p.y + m[6] * p.z + m[7],
                                  m[8] * p.x + m[9] * p.y + m[10] * p.z + m[11]);
        const T w = m[12] * p.x + m[13] * p.y + m[14] * p.z + m[15];
        if (w == static_cast<T>(1)) return moved;
        if (w == static_cast<T>(0))
            throw tqMathException(tqMathException::DivisionByZero, u"the point is mapped to infinity (w = 0)");
        return tqTPoint3d<T>(moved.x / w, moved.y / w, moved.z / w);
    } else {
        return TransformVector(p);
    }
}

template <class T, std::size_t R, std::size_t C>
tqTPoint3d<T> tqMatrix<T, R, C>::TransformVector(const tqTPoint3d<T>& v) const {
    if constexpr (IsPlacement(R, C) || IsLinear3d(R, C)) {
        const T* m = m_values;
        return tqTPoint3d<T>(m[0] * v.x + m[1] * v.y + m[2] * v.z,
                             m[C] * v.x + m[C + 1] * v.y + m[C + 2] * v.z,
                             m[2 * C] * v.x + m[2 * C + 1] * v.y + m[2 * C + 2] * v.z);
    } else {
        throw tqMathException(tqMathException::MatrixVectorIncompatible, u"a point needs a 3 by 3 or 4 by 4 matrix");
    }
}

template <class T, std::size_t R, std::size_t C>
tqTPoint3d<T> tqMatrix<T, R, C>::GetTranslation() const {
    if constexpr (IsPlacement(R, C)) {
        return tqTPoint3d<T>(m_values[3], m_values[7], m_values[11]);
    } else {
        throw tqMathException(tqMathException::MatrixVectorIncompatible, u"a translation needs a 4 by 4 matrix");
    }
}

template <class T, std::size_t R, std::size_t C>
void tqMatrix<T, R, C>::SetTranslation(const tqTPoint3d<T>& translation) {
    if constexpr (IsPlacement(R, C)) {
        m_values[3] = translation.x;
        m_values[7] = translation.y;
        m_values[11] = translation.z;
    } else {
        throw tqMathException(tqMathException::MatrixVectorIncompatible, u"a translation needs a 4 by 4 matrix");
    }
}

template <class T, std::size_t R, std::size_t C>
tqMatrix<T, R, C> tqMatrix<T, R, C>::Transpose() const {
    if constexpr (R == C) {
        tqMatrix result;
        for (std::size_t i = 0; i < R; ++i)
            for (std::size_t j = 0; j < C; ++j) result.m_values[j * C + i] = m_values[i * C + j];
        return result;
    } else {
        throw tqMathException(tqMathException::MatrixNotSquare, u"transpose in place of a non-square matrix");
    }
}

template <class T, std::size_t R, std::size_t C>
T tqMatrix<T, R, C>::Determinant() const {
    if constexpr (R == C) {
        // LU elimination with partial pivoting; an exactly zero column below the diagonal gives 0.
        T a[R * C];
        for (std::size_t i = 0; i < R * C; ++i) a[i] = m_values[i];
        T determinant = static_cast<T>(1);
        for (std::size_t k = 0; k < R; ++k) {
            std::size_t pivot = k;
            for (std::size_t i = k + 1; i < R; ++i)
                if (std::fabs(a[i * C + k]) > std::fabs(a[pivot * C + k])) pivot = i;
            if (a[pivot * C + k] == static_cast<T>(0)) return static_cast<T>(0);
            if (pivot != k) {
                for (std::size_t j = 0; j < C; ++j) std::swap(a[k * C + j], a[pivot * C + j]);
                determinant = -determinant;
            }
            determinant *= a[k * C + k];
            for (std::size_t i = k + 1; i < R; ++i) {
                const T f = a[i * C + k] / a[k * C + k];
                for (std::size_t j = k; j < C; ++j) a[i * C + j] -= f * a[k * C + j];
            }
        }
        return determinant;
    } else {
        throw tqMathException(tqMathException::MatrixNotSquare, u"the determinant needs a square matrix");
    }
}

template <class T, std::size_t R, std::size_t C>
tqMatrix<T, R, C> tqMatrix<T, R, C>::Inverse() const {
    if constexpr (R == C) {
        // Gauss-Jordan with partial pivoting. A pivot that vanishes against the matrix's largest element
        // means singular: rounding rarely leaves an exact zero, and a NaN pivot fails the same way.
        T largest = static_cast<T>(0);
        for (const T value : m_values)
            if (std::fabs(value) > largest) largest = std::fabs(value);
        const T threshold = largest * static_cast<T>(R) * std::numeric_limits<T>::epsilon();
        T a[R * C];
        for (std::size_t i = 0; i < R * C; ++i) a[i] = m_values[i];
        tqMatrix inverse;
        T* b = inverse.m_values;
        for (std::size_t k = 0; k < R; ++k) {
            std::size_t pivot = k;
            for (std::size_t i = k + 1; i < R; ++i)
                if (std::fabs(a[i * C + k]) > std::fabs(a[pivot * C + k])) pivot = i;
            if (!(std::fabs(a[pivot * C + k]) > threshold))
                throw tqMathException(tqMathException::ZeroDeterminant,
                                      u"Can compute inverse only for nonsingular matrices (det != 0)");
            if (pivot != k) {
                for (std::size_t j = 0; j < C; ++j) {
                    std::swap(a[k * C + j], a[pivot * C + j]);
                    std::swap(b[k * C + j], b[pivot * C + j]);
                }
            }
            const T scale = a[k * C + k];
            for (std::size_t j = 0; j < C; ++j) {
                a[k * C + j] /= scale;
                b[k * C + j] /= scale;
            }
            for (std::size_t i = 0; i < R; ++i) {
                if (i == k) continue;
                const T f = a[i * C + k];
                if (f == static_cast<T>(0)) continue;
                for (std::size_t j = 0; j < C; ++j) {
                    a[i * C + j] -= f * a[k * C + j];
                    b[i * C + j] -= f * b[k * C + j];
                }
            }
        }
        return inverse;
    } else {
        throw tqMathException(tqMathException::MatrixNotSquare, u"only a square matrix has an inverse");
    }
}

template class tqMatrix<double, 4, 4>;
template class tqMatrix<double, 3, 3>;

}  // namespace cadcam
