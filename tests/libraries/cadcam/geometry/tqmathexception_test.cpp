// tqMathException: the ten prefixes, the detail after them, and the exception's clone and rethrow.
#include "cadcam/geometry/tqmathexception.h"

#include <utility>

#include "support/tqtest.h"

using cadcam::tqMathException;

TEST(TqMathException, EachTypeChoosesItsPrefixAndTheDetailFollows) {
    const std::pair<tqMathException::Type, const char*> cases[] = {
        {tqMathException::DivisionByZero, "Division by zero: "},
        {tqMathException::MatrixNotSquare, "Matrix not square: "},
        {tqMathException::IncompatibleVectors, "Incompatible vectors: "},
        {tqMathException::IncompatibleMatrices, "Incompatible matrices: "},
        {tqMathException::MatrixVectorIncompatible, "Matrix and vector are incompatible: "},
        {tqMathException::InvalidMatrixParameters, "Matrix creation parameters are invalid: "},
        {tqMathException::InvalidVectorParameters, "Vector creation parameters are invalid: "},
        {tqMathException::ZeroDeterminant, "Determinant is zero, cannot find matrix inverse: "},
        {tqMathException::IncompatibleMatrixPair, "Incompatible pair of matrices for this operation: "},
        {tqMathException::Undefined, "Undefined MATH EXCEPTION TYPE!!! Please review tqMathException: "},
        {static_cast<tqMathException::Type>(42), "Undefined MATH EXCEPTION TYPE!!! Please review tqMathException: "},
    };
    for (const auto& c : cases) {
        const tqMathException e(c.first, u"detail");
        EXPECT_EQ(misc::to_utf8(e.GetMessage()), std::string(c.second) + "detail");
        EXPECT_EQ(e.GetCode(), 0);
        EXPECT_EQ(e.GetType(), c.first);
        EXPECT_EQ(e.GetDetail(), misc::tqstring(u"detail"));
    }
}

TEST(TqMathException, CloneKeepsTheClassAndRethrowSlices) {
    const misc::tqException cause(7, u"cause");
    const tqMathException e(tqMathException::DivisionByZero, u"x / 0", &cause);
    const auto clone = e.Clone();
    ASSERT_NE(dynamic_cast<const tqMathException*>(clone.Get()), nullptr);
    EXPECT_EQ(dynamic_cast<const tqMathException&>(*clone).GetType(), tqMathException::DivisionByZero);
    EXPECT_EQ(*clone, e);
    try {
        e.Rethrow();
    } catch (const tqMathException&) {
        ADD_FAILURE() << "Rethrow must throw a plain tqException";
    } catch (const misc::tqException& thrown) {
        EXPECT_EQ(thrown, misc::tqException(0, u"Division by zero: x / 0", &cause));
    }
}
