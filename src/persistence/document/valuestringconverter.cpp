// ValueStringConverter: printing with std::to_chars and reading with the strto*_l family under a C locale,
// so that the process locale never changes a decimal point.
#include "persistence/document/valuestringconverter.h"

#include <locale.h>

#include <cerrno>
#include <charconv>
#include <climits>
#include <cstdlib>
#include <string>
#include <vector>

#include "misc/tqexception.h"
#include "persistence/document/xmlnames.h"

namespace tqWorkRig {

namespace {

constexpr int kPlainDecimals = 6;
// 32 decimals carry every significant digit of a double down to about 1e-15; smaller values lose their tail.
constexpr int kExactDecimals = 32;
constexpr std::size_t kPointTokens = 3;
constexpr std::size_t kMatrixTokens = 16;

[[noreturn]] void ThrowConversionFailed() {
    throw misc::tqmiscException(ValueStringConverter::kConversionFailedCode, u"Conversion from string to value failed");
}

// One "C" locale object for the whole process; the strto*_l functions only read it.
class CLocale {
public:
    CLocale() : m_locale(newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr))) {}
    ~CLocale() {
        if (m_locale != static_cast<locale_t>(nullptr)) freelocale(m_locale);
    }
    CLocale(const CLocale&) = delete;
    CLocale& operator=(const CLocale&) = delete;
    locale_t Get() const { return m_locale; }

private:
    locale_t m_locale;
};

locale_t TheCLocale() {
    static const CLocale cLocale;
    if (cLocale.Get() == static_cast<locale_t>(nullptr)) ThrowConversionFailed();
    return cLocale.Get();
}

template <class... Format>
std::string Print(double value, Format... format) {
    // DBL_MAX has 309 digits before the point; 32 after it, a sign and a point fit easily.
    char buffer[400];
    const std::to_chars_result result = std::to_chars(buffer, buffer + sizeof(buffer), value, format...);
    return std::string(buffer, result.ptr);
}

template <class Integer>
std::string Print(Integer value) {
    char buffer[32];
    const std::to_chars_result result = std::to_chars(buffer, buffer + sizeof(buffer), value);
    return std::string(buffer, result.ptr);
}

std::string PlainDouble(double value) { return Print(value, std::chars_format::fixed, kPlainDecimals); }

std::string ExactDouble(double value) {
    std::string text = Print(value, std::chars_format::fixed, kExactDecimals);
    if (text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.') text.pop_back();
    }
    return text;
}

double ReadDouble(const std::string& token) {
    const char* begin = token.c_str();
    char* end = nullptr;
    const double value = strtod_l(begin, &end, TheCLocale());
    if (end == begin) ThrowConversionFailed();
    return value;
}

std::vector<std::string> Split(const std::string& text) {
    std::vector<std::string> tokens;
    std::string::size_type start = 0;
    for (;;) {
        const std::string::size_type comma = text.find(',', start);
        tokens.push_back(text.substr(start, comma == std::string::npos ? std::string::npos : comma - start));
        if (comma == std::string::npos) return tokens;
        start = comma + 1;
    }
}

}  // namespace

tqstring ValueStringConverter::IntToString(int value) { return tqstring(Print(value)); }

int ValueStringConverter::StringToInt(const tqstring& text) {
    const std::string narrow = misc::to_utf8(text);
    const char* begin = narrow.c_str();
    char* end = nullptr;
    errno = 0;
    const long value = strtol_l(begin, &end, 10, TheCLocale());
    if (end == begin || errno == ERANGE || value < INT_MIN || value > INT_MAX) ThrowConversionFailed();
    return static_cast<int>(value);
}

tqstring ValueStringConverter::UInt64ToString(std::uint64_t value) { return tqstring(Print(value)); }

std::uint64_t ValueStringConverter::StringToUInt64(const tqstring& text) {
    const std::string narrow = misc::to_utf8(text);
    const std::string::size_type first = narrow.find_first_not_of(" \t\n\v\f\r");
    // strtoull would wrap a negative number round to a huge id.
    if (first != std::string::npos && narrow[first] == '-') ThrowConversionFailed();
    const char* begin = narrow.c_str();
    char* end = nullptr;
    errno = 0;
    const unsigned long long value = strtoull_l(begin, &end, 10, TheCLocale());
    if (end == begin || errno == ERANGE) ThrowConversionFailed();
    return static_cast<std::uint64_t>(value);
}

tqstring ValueStringConverter::DoubleToString(double value) { return tqstring(PlainDouble(value)); }

tqstring ValueStringConverter::ExactDoubleToString(double value) { return tqstring(ExactDouble(value)); }

double ValueStringConverter::StringToDouble(const tqstring& text) { return ReadDouble(misc::to_utf8(text)); }

tqstring ValueStringConverter::PointToString(const cadcam::tqTPoint3d<double>& point) {
    return tqstring(PlainDouble(point.x) + ',' + PlainDouble(point.y) + ',' + PlainDouble(point.z));
}

cadcam::tqTPoint3d<double> ValueStringConverter::StringToPoint(const tqstring& text) {
    const std::vector<std::string> tokens = Split(misc::to_utf8(text));
    if (tokens.size() < kPointTokens) ThrowConversionFailed();
    return cadcam::tqTPoint3d<double>(ReadDouble(tokens[0]), ReadDouble(tokens[1]), ReadDouble(tokens[2]));
}

tqstring ValueStringConverter::MatrixToString(const cadcam::tqMatrix<double, 4, 4>& matrix) {
    std::string text;
    const double* values = matrix.GetData();
    for (std::size_t i = 0; i < kMatrixTokens; ++i) {
        if (i > 0) text += ',';
        text += ExactDouble(values[i]);
    }
    return tqstring(text);
}

cadcam::tqMatrix<double, 4, 4> ValueStringConverter::StringToMatrix(const tqstring& text) {
    const std::vector<std::string> tokens = Split(misc::to_utf8(text));
    if (tokens.size() < kMatrixTokens) ThrowConversionFailed();
    cadcam::tqMatrix<double, 4, 4> matrix;
    double* values = matrix.GetData();
    for (std::size_t i = 0; i < kMatrixTokens; ++i) values[i] = ReadDouble(tokens[i]);
    return matrix;
}

tqstring ValueStringConverter::BoolToString(bool value) { return tqstring(value ? xml::kTrue : xml::kFalse); }

bool ValueStringConverter::StringToBool(const tqstring& text) { return text == tqstring(xml::kTrue); }

}  // namespace tqWorkRig
