// tqGenericTool: the refusal of null and non-isometric placements, and the change of units over its four groups.
#include "cadcam/tools/other/tqgenerictool.h"

#include <cmath>
#include <limits>

#include "othertestsupport.h"

namespace othertest {
namespace {

using cadcam::tqGenericTool;
using Matrix = cadcam::tqMatrix<double, 4, 4>;
using tqtest::PartPointer;
using MatrixPointer = misc::tqAutoPointer<Matrix>;

const char* const kIsometryText = "Non isometric matrix passed to tqGenericTool";

PartPointer Cutting(double radius = 5) { return tqtest::Cutting(tqtest::Head(radius, 10)); }
PartPointer NonCutting() { return tqtest::NonCutting(tqtest::Head(6, 30)); }
PartPointer HolderPart() { return tqtest::Make<cadcam::tqHolderDefinition<double>>(tqtest::Head(25, 70)); }
tqGenericTool::PositionedPart At(const PartPointer& part, const Matrix& matrix) {
    return {part, MatrixPointer(new Matrix(matrix))};
}
Matrix Move(double z) { return Matrix::Translation(0, 0, z); }

tqGenericTool Typical() {
    return tqGenericTool(kMetric, {At(HolderPart(), Move(40))}, {}, {At(NonCutting(), Move(10))},
                         {At(Cutting(), Matrix::Rotation({0, 0, 1}, 30)), At(Cutting(3), Move(-2))});
}

TEST(tqGenericTool, RefusesNullElementsAndNonIsometricMatrices) {
    auto make = [](const tqGenericTool::PositionedPart& element) {
        tqGenericTool(kMetric, {}, {}, {At(NonCutting(), Move(1))}, {element});
    };
    EXPECT_THROW_CODE(make({PartPointer(), MatrixPointer(new Matrix())}), misc::tqException, 0,
                      "Accessing TQ_NULL pointer");
    EXPECT_THROW_CODE(make({Cutting(), MatrixPointer()}), misc::tqException, 0, "Accessing TQ_NULL pointer");
    Matrix shear;
    shear(0, 1) = 1e-9;
    EXPECT_NO_THROW(make(At(Cutting(), shear)));
    shear(0, 1) = 1.1e-9;
    EXPECT_THROW_CODE(make(At(Cutting(), shear)), misc::tqException, 0, kIsometryText);
    Matrix scaled;
    scaled(2, 2) = 2;
    EXPECT_THROW_CODE(make(At(Cutting(), scaled)), misc::tqException, 0, kIsometryText);
    Matrix mirrored;
    mirrored(0, 0) = -1;
    EXPECT_NO_THROW(make(At(Cutting(), mirrored)));
    for (std::size_t column = 0; column < 4; ++column) {
        Matrix projective;
        projective(3, column) += std::numeric_limits<double>::denorm_min();
        if (column == 3) projective(3, 3) = std::nextafter(1.0, 2.0);
        EXPECT_THROW_CODE(make(At(Cutting(), projective)), misc::tqException, 0, kIsometryText);
    }
    EXPECT_THROW_CODE(make(At(Cutting(), Move(std::nan("")))), misc::tqException, 0, kIsometryText);
    // Every group is checked, the holder group too.
    EXPECT_THROW_CODE(tqGenericTool(kMetric, {At(HolderPart(), scaled)}, {}, {}, {}), misc::tqException, 0,
                      kIsometryText);
}

TEST(tqGenericTool, UnitsScaleTranslationsAndCopiesOfTheParts) {
    const tqGenericTool tool = Typical();
    // Its holder and arbor are in its groups; the slots of the other tools stay empty.
    EXPECT_TRUE(tool.GetHolder().IsNull() && tool.GetArbor().IsNull());
    tqGenericTool inch(tool);
    inch.SetUnits(kInch);
    const Matrix& rotated = *inch.GetCuttingParts()[0].m_matrix;
    EXPECT_EQ(rotated, Matrix::Rotation({0, 0, 1}, 30)) << "a rotation about the origin does not move";
    EXPECT_DOUBLE_EQ((*inch.GetHolderGroup()[0].m_matrix)(2, 3), 40 / 25.4);
    EXPECT_EQ((*tool.GetHolderGroup()[0].m_matrix)(2, 3), 40) << "the shared matrix stays";
    const PartPointer& part = inch.GetNonCuttingParts()[0].m_part;
    EXPECT_EQ(part->GetUnits(), kInch);
    EXPECT_EQ(part->GetSolid()->GetUnits(), kInch);
    EXPECT_EQ(tool.GetNonCuttingParts()[0].m_part->GetUnits(), kMetric);
    inch.SetUnits(kMetric);
    EXPECT_NEAR((*inch.GetCuttingParts()[1].m_matrix)(2, 3), -2, 1e-15);
}

}  // namespace
}  // namespace othertest
