// tqMathException: matrix and vector failures, whose text is a prefix chosen by type followed by detail.
#pragma once

#include <cstdint>

#include "misc/tqexception.h"

namespace cadcam {

/// A matrix or vector failure; code 0, message = the prefix of its type + the detail.
class TQ_EXPORT tqMathException : public misc::tqException {
public:
    /// The kinds of failure; each picks one prefix. Any other value reads as Undefined.
    enum Type : std::int32_t {
        DivisionByZero = 0,              ///< "Division by zero: "
        MatrixNotSquare,                 ///< "Matrix not square: "
        IncompatibleVectors,             ///< "Incompatible vectors: "
        IncompatibleMatrices,            ///< "Incompatible matrices: "
        MatrixVectorIncompatible,        ///< "Matrix and vector are incompatible: "
        InvalidMatrixParameters,         ///< "Matrix creation parameters are invalid: "
        InvalidVectorParameters,         ///< "Vector creation parameters are invalid: "
        ZeroDeterminant,                 ///< "Determinant is zero, cannot find matrix inverse: "
        IncompatibleMatrixPair,          ///< "Incompatible pair of matrices for this operation: "
        Undefined                        ///< "Undefined MATH EXCEPTION TYPE!!! Please review tqMathException: "
    };

    /// The message is PrefixOf(type) followed by detail.
    tqMathException(Type type, const misc::tqstring& detail, const misc::tqException* earlier = nullptr);
    ~tqMathException() override;
    [[noreturn]] void Rethrow() const override;
    misc::tqAutoPointer<misc::tqException> Clone() const override;

    /// The type as given at construction.
    Type GetType() const { return m_type; }
    /// The text after the prefix.
    const misc::tqstring& GetDetail() const { return m_detail; }

    /// The prefix of a type; unknown values give the Undefined prefix.
    static misc::tqstring PrefixOf(Type type);

private:
    Type m_type;
    misc::tqstring m_detail;
};

}  // namespace cadcam
