// tqMatrix: a small dense matrix of R rows and C columns; 4x4 is the placement of the model.
#pragma once

#include <cstddef>

#include "cadcam/geometry/tqtpoint3d.h"
#include "misc/export.h"

namespace cadcam {

namespace detail_ {
/// Throws tqIdxRangeException for an element index outside the matrix.
[[noreturn]] TQ_EXPORT void ThrowMatrixIndex(std::size_t limit, std::size_t index);
}  // namespace detail_

/// R rows of C values, stored row by row. A placement is 4x4 with the translation in the last column and
/// points as columns (p' = M p). Compared exactly, element by element.
template <class T, std::size_t R, std::size_t C>
class TQ_EXPORT tqMatrix {
    static_assert(R > 0 && C > 0, "a matrix has at least one row and one column");

public:
    static constexpr std::size_t kRows = R;
    static constexpr std::size_t kColumns = C;

    /// Ones on the leading diagonal, zeros elsewhere: the identity for a square matrix.
    tqMatrix() {
        for (std::size_t i = 0; i < R; ++i)
            for (std::size_t j = 0; j < C; ++j) m_values[i * C + j] = static_cast<T>(i == j ? 1 : 0);
    }
    /// From R*C values in row order.
    explicit tqMatrix(const T (&values)[R * C]);

    /// The identity (ones on the leading diagonal).
    static tqMatrix Identity() { return tqMatrix(); }
    /// All zeros.
    static tqMatrix Zero() {
        tqMatrix zero;
        for (T& value : zero.m_values) value = static_cast<T>(0);
        return zero;
    }
    /// 4x4 only: the move by (x, y, z); other shapes throw tqMathException.
    static tqMatrix Translation(T x, T y, T z);
    /// 4x4 only: the move by v.
    static tqMatrix Translation(const tqTPoint3d<T>& v) { return Translation(v.x, v.y, v.z); }
    /// 3x3 or 4x4: the right-handed rotation by degrees about an axis through the origin; a zero axis throws.
    static tqMatrix Rotation(const tqTPoint3d<T>& axis, T degrees);

    /// The element at (row, column); an index outside the matrix throws tqIdxRangeException.
    T& operator()(std::size_t row, std::size_t column) {
        Check(row, column);
        return m_values[row * C + column];
    }
    const T& operator()(std::size_t row, std::size_t column) const {
        Check(row, column);
        return m_values[row * C + column];
    }
    /// The R*C values in row order.
    const T* GetData() const { return m_values; }
    T* GetData() { return m_values; }

    /// Exact element-wise equality; a NaN element is unequal to everything.
    bool operator==(const tqMatrix& other) const;
    bool operator!=(const tqMatrix& other) const { return !(*this == other); }
    /// Every element within tolerance of the identity's; a NaN fails.
    bool IsIdentity(T tolerance = static_cast<T>(0.00001)) const;

    /// The matrix product this × other.
    template <std::size_t K>
    tqMatrix<T, R, K> operator*(const tqMatrix<T, C, K>& other) const {
        tqMatrix<T, R, K> result = tqMatrix<T, R, K>::Zero();
        T* out = result.GetData();
        const T* right = other.GetData();
        for (std::size_t i = 0; i < R; ++i)
            for (std::size_t k = 0; k < C; ++k)
                for (std::size_t j = 0; j < K; ++j) out[i * K + j] += m_values[i * C + k] * right[k * K + j];
        return result;
    }
    /// this = this × other (square only: for other shapes the product would change the type).
    tqMatrix& operator*=(const tqMatrix& other);

    /// Applies the matrix to a point: homogeneous with w = 1 for 4x4 (divided by the resulting w when that
    /// is not 1), linear for 3x3; other shapes throw tqMathException, and so does a resulting w of 0.
    tqTPoint3d<T> operator*(const tqTPoint3d<T>& point) const;
    /// Applies the linear part only (no translation): for directions and normals; 3x3 or 4x4.
    tqTPoint3d<T> TransformVector(const tqTPoint3d<T>& vector) const;

    /// 4x4 only: the last column's first three values.
    tqTPoint3d<T> GetTranslation() const;
    /// 4x4 only: sets the last column's first three values.
    void SetTranslation(const tqTPoint3d<T>& translation);

    /// The transpose (square only: other shapes would change the type).
    tqMatrix Transpose() const;
    /// The determinant; a non-square matrix throws tqMathException.
    T Determinant() const;
    /// The general inverse; a non-square or singular matrix throws tqMathException.
    tqMatrix Inverse() const;

private:
    static void Check(std::size_t row, std::size_t column) {
        if (row >= R) detail_::ThrowMatrixIndex(R, row);
        if (column >= C) detail_::ThrowMatrixIndex(C, column);
    }

    T m_values[R * C];
};

using tqMatrix4d = tqMatrix<double, 4, 4>;
using tqMatrix3d = tqMatrix<double, 3, 3>;

extern template class tqMatrix<double, 4, 4>;
extern template class tqMatrix<double, 3, 3>;

}  // namespace cadcam
