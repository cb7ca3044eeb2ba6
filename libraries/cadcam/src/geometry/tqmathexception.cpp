// tqMathException: the prefix table and the exception's virtual operations.
#include "cadcam/geometry/tqmathexception.h"

namespace cadcam {

tqMathException::tqMathException(Type type, const misc::tqstring& detail, const misc::tqException* earlier)
    : misc::tqException(0, PrefixOf(type) + detail, earlier), m_type(type), m_detail(detail) {}

tqMathException::~tqMathException() = default;

void tqMathException::Rethrow() const { throw misc::tqException(*this); }

misc::tqAutoPointer<misc::tqException> tqMathException::Clone() const {
    return misc::tqAutoPointer<misc::tqException>(new tqMathException(*this));
}

misc::tqstring tqMathException::PrefixOf(Type type) {
    switch (type) {
        case DivisionByZero: return u"Division by zero: ";
        case MatrixNotSquare: return u"Matrix not square: ";
        case IncompatibleVectors: return u"Incompatible vectors: ";
        case IncompatibleMatrices: return u"Incompatible matrices: ";
        case MatrixVectorIncompatible: return u"Matrix and vector are incompatible: ";
        case InvalidMatrixParameters: return u"Matrix creation parameters are invalid: ";
        case InvalidVectorParameters: return u"Vector creation parameters are invalid: ";
        case ZeroDeterminant: return u"Determinant is zero, cannot find matrix inverse: ";
        case IncompatibleMatrixPair: return u"Incompatible pair of matrices for this operation: ";
        default: return u"Undefined MATH EXCEPTION TYPE!!! Please review tqMathException: ";
    }
}

}  // namespace cadcam
