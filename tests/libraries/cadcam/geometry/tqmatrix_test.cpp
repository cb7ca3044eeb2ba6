// tqMatrix: exact comparison, element access, products, points, the identity test and the inverse.
#include "cadcam/geometry/tqmatrix.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "cadcam/geometry/tqmathexception.h"
#include "support/tqtest.h"

using cadcam::tqMathException;
using cadcam::tqPoint3d;
using Matrix = cadcam::tqMatrix<double, 4, 4>;
using Matrix3 = cadcam::tqMatrix<double, 3, 3>;

namespace {

const char* const kSingular =
    "Determinant is zero, cannot find matrix inverse: "
    "Can compute inverse only for nonsingular matrices (det != 0)";

/// A placement with rotation, translation and nothing symmetric, so transposition mistakes show.
Matrix SomePlacement() {
    return Matrix::Translation(10, -20, 5.5) * Matrix::Rotation(tqPoint3d(1, 2, 3), 37) *
           Matrix::Rotation(tqPoint3d(0, 0, 1), -12);
}

}  // namespace

TEST(TqMatrix, NewMatrixIsTheIdentityStoredRowByRow) {
    const Matrix m;
    for (std::size_t r = 0; r < 4; ++r)
        for (std::size_t c = 0; c < 4; ++c) EXPECT_EQ(m(r, c), r == c ? 1.0 : 0.0) << r << "," << c;
    const double values[16] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
    const Matrix v(values);
    EXPECT_EQ(v(0, 3), 4.0);  // row 0, column 3
    EXPECT_EQ(v(3, 0), 13.0);
    EXPECT_EQ(v.GetData()[7], 8.0);
    EXPECT_EQ(Matrix::Translation(1, 2, 3).GetTranslation(), tqPoint3d(1, 2, 3));
    EXPECT_EQ(Matrix::Translation(1, 2, 3)(2, 3), 3.0);
    EXPECT_THROW_MSG(v(4, 0), misc::tqIdxRangeException<std::uint64_t>, "Matrix index out of range");
    EXPECT_THROW_MSG(v(0, 4), misc::tqIdxRangeException<std::uint64_t>, "Matrix index out of range");
}

TEST(TqMatrix, ComparesExactlyAndIsIdentityAllowsOneHundredThousandth) {
    Matrix a = SomePlacement(), nan, m;
    EXPECT_EQ(SomePlacement(), a);
    a(2, 1) = std::nextafter(a(2, 1), 10.0);
    EXPECT_NE(SomePlacement(), a);
    nan(3, 3) = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(nan == nan);
    EXPECT_TRUE(nan != nan);
    EXPECT_FALSE(nan.IsIdentity());
    EXPECT_FALSE(Matrix::Zero().IsIdentity());
    m(0, 3) = 0.00001;
    m(1, 1) = 1 - 0.000009;
    EXPECT_TRUE(m.IsIdentity());
    m(0, 3) = 0.0000101;
    EXPECT_FALSE(m.IsIdentity());
}

TEST(TqMatrix, ProductsComposeRightToLeftOnColumnPoints) {
    const Matrix move = Matrix::Translation(1, 0, 0);
    const Matrix turn = Matrix::Rotation(tqPoint3d(0, 0, 1), 90);  // quarter turns are exact
    const tqPoint3d x(1, 0, 0);
    EXPECT_EQ(turn * x, tqPoint3d(0, 1, 0));
    EXPECT_EQ((move * turn) * x, tqPoint3d(1, 1, 0));  // turns first, then moves
    EXPECT_EQ((turn * move) * x, tqPoint3d(0, 2, 0));
    EXPECT_EQ(turn.TransformVector(x), tqPoint3d(0, 1, 0));
    EXPECT_EQ(move.TransformVector(x), x);
    Matrix product = move;
    product *= turn;
    EXPECT_EQ(product, move * turn);
    // Homogeneous points are divided by w.
    product = Matrix();
    product(3, 3) = 2;
    EXPECT_EQ(product * tqPoint3d(2, 4, 6), tqPoint3d(1, 2, 3));
    product(3, 3) = 0;
    EXPECT_THROW_MSG(product * x, tqMathException, "Division by zero: the point is mapped to infinity (w = 0)");
    // A 3 by 3 matrix is linear: no translation, no w.
    EXPECT_EQ(Matrix3::Rotation(x, 180) * tqPoint3d(0, 1, 0), tqPoint3d(0, -1, 0));
}

TEST(TqMatrix, InverseUndoesThePlacement) {
    const Matrix m = SomePlacement();
    const Matrix inverse = m.Inverse();
    EXPECT_TRUE((m * inverse).IsIdentity(1e-12));
    EXPECT_TRUE((inverse * m).IsIdentity(1e-12));
    const tqPoint3d p(3, -7, 11), back = inverse * (m * p);
    for (const double d : {back.x - p.x, back.y - p.y, back.z - p.z}) EXPECT_NEAR(d, 0, 1e-12);
    EXPECT_NEAR(m.Determinant(), 1.0, 1e-12);
    EXPECT_EQ(Matrix::Translation(1.5, -2, 8).Inverse(), Matrix::Translation(-1.5, 2, -8));  // exactly
    const double diagonal[9] = {2, 0, 0, 0, 4, 0, 0, 0, 0.5};
    EXPECT_EQ(Matrix3(diagonal).Inverse()(1, 1), 0.25);
    EXPECT_EQ(Matrix3(diagonal).Determinant(), 4.0);
}

TEST(TqMatrix, SingularMatricesAndBadParametersFail) {
    Matrix flat, nan;
    flat(2, 2) = 0;  // squashes z
    EXPECT_EQ(flat.Determinant(), 0.0);
    nan(0, 0) = std::numeric_limits<double>::quiet_NaN();
    for (const Matrix& m : {Matrix::Zero(), flat, nan}) EXPECT_THROW_MSG(m.Inverse(), tqMathException, kSingular);
    // Singular in exact arithmetic but not in rounded elimination.
    const double rankTwo[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    EXPECT_THROW_MSG(Matrix3(rankTwo).Inverse(), tqMathException, kSingular);
    EXPECT_THROW_MSG(Matrix::Rotation(tqPoint3d(0, 0, 0), 10), tqMathException,
                     "Vector creation parameters are invalid: the rotation axis has no direction");
    EXPECT_THROW_MSG(Matrix3::Translation(1, 2, 3), tqMathException,
                     "Matrix creation parameters are invalid: a translation needs a 4 by 4 matrix");
}
