// ValueStringConverter: the number, point, matrix and truth value formats of the document.
#pragma once

#include <cstdint>

#include "cadcam/geometry/tqmatrix.h"
#include "cadcam/geometry/tqtpoint3d.h"
#include "misc/tqstring.h"

namespace tqWorkRig {

using misc::tqstring;

/// Converts values to the texts of document attributes and back, always with the C locale's decimal point.
/// A text that does not parse, the empty text of an absent attribute included, throws tqmiscException 2579
/// "Conversion from string to value failed".
class ValueStringConverter {
public:
    /// The code of the conversion failure.
    static constexpr std::int32_t kConversionFailedCode = 2579;

    /// "%d".
    static tqstring IntToString(int value);
    /// As "%d" reads: leading blanks and a sign are taken, reading stops at the first non-digit.
    static int StringToInt(const tqstring& text);
    /// Plain decimal.
    static tqstring UInt64ToString(std::uint64_t value);
    /// Plain decimal, leading blanks taken, reading stops at the first non-digit; a sign of minus fails.
    static std::uint64_t StringToUInt64(const tqstring& text);
    /// "%f": six decimals, trailing zeros kept.
    static tqstring DoubleToString(double value);
    /// Fixed with 32 decimals, then trailing zeros and a final point cut, so that the double survives exactly.
    static tqstring ExactDoubleToString(double value);
    /// As "%lf" reads.
    static double StringToDouble(const tqstring& text);
    /// The three coordinates as "%f", joined by ",".
    static tqstring PointToString(const cadcam::tqTPoint3d<double>& point);
    /// Cut at ","; tokens 0 to 2 read as "%lf".
    static cadcam::tqTPoint3d<double> StringToPoint(const tqstring& text);
    /// The 16 values in row order as exact doubles, joined by ",", no blanks.
    static tqstring MatrixToString(const cadcam::tqMatrix<double, 4, 4>& matrix);
    /// Cut at ","; tokens 0 to 15 read as "%lf" in row order.
    static cadcam::tqMatrix<double, 4, 4> StringToMatrix(const tqstring& text);
    /// "true" or "false".
    static tqstring BoolToString(bool value);
    /// True for exactly "true", false for every other text; never fails.
    static bool StringToBool(const tqstring& text);
};

}  // namespace tqWorkRig
