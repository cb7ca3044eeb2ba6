// ValueStringConverter: the exact number formats of the document, their reading, and the conversion failure.
#include "persistence/document/valuestringconverter.h"

#include <locale.h>

#include <climits>
#include <cstdint>
#include <string>

#include "support/tqtest.h"

using cadcam::tqTPoint3d;
using misc::tqstring;
using tqWorkRig::ValueStringConverter;
using Matrix = cadcam::tqMatrix<double, 4, 4>;

namespace {

constexpr char kConversionFailed[] = "Conversion from string to value failed";

std::string Utf8(const tqstring& text) { return misc::to_utf8(text); }

}  // namespace

TEST(ValueStringConverter, IntegersAreDecimal) {
    EXPECT_EQ(Utf8(ValueStringConverter::IntToString(0)), "0");
    EXPECT_EQ(Utf8(ValueStringConverter::IntToString(-17)), "-17");
    EXPECT_EQ(Utf8(ValueStringConverter::IntToString(INT_MAX)), "2147483647");
    EXPECT_EQ(Utf8(ValueStringConverter::UInt64ToString(UINT64_MAX)), "18446744073709551615");
    EXPECT_EQ(ValueStringConverter::StringToUInt64(u"18446744073709551615"), UINT64_MAX);
    EXPECT_EQ(ValueStringConverter::StringToInt(u"-2147483648"), INT_MIN);
}

TEST(ValueStringConverter, IntegersReadAsPercentD) {
    EXPECT_EQ(ValueStringConverter::StringToInt(u" 42"), 42);
    EXPECT_EQ(ValueStringConverter::StringToInt(u"+5"), 5);
    // Reading stops at the first character that is no digit: a colour of "0.5" is 0.
    EXPECT_EQ(ValueStringConverter::StringToInt(u"0.5"), 0);
    EXPECT_EQ(ValueStringConverter::StringToInt(u"12abc"), 12);
    // Ids are numbers when read, so "007" and "7" are the same.
    EXPECT_EQ(ValueStringConverter::StringToUInt64(u"007"), 7u);
}

TEST(ValueStringConverter, PlainDoublesHaveSixDecimals) {
    EXPECT_EQ(Utf8(ValueStringConverter::DoubleToString(1.0 / 3.0)), "0.333333");
    EXPECT_EQ(Utf8(ValueStringConverter::DoubleToString(2.5)), "2.500000");
    EXPECT_EQ(Utf8(ValueStringConverter::DoubleToString(-1e6)), "-1000000.000000");
    EXPECT_EQ(Utf8(ValueStringConverter::DoubleToString(0.0000004)), "0.000000");
    EXPECT_EQ(Utf8(ValueStringConverter::DoubleToString(0.0000005000001)), "0.000001");
    // A "Diameter" of 1/3 reads back as 0.333333: six decimals lose precision by design.
    EXPECT_EQ(ValueStringConverter::StringToDouble(ValueStringConverter::DoubleToString(1.0 / 3.0)), 0.333333);
}

TEST(ValueStringConverter, DoublesReadAsPercentLf) {
    EXPECT_EQ(ValueStringConverter::StringToDouble(u"1e3"), 1000.0);
    EXPECT_EQ(ValueStringConverter::StringToDouble(u"  -2.5xyz"), -2.5);
    EXPECT_EQ(ValueStringConverter::StringToDouble(u"7"), 7.0);
    // The decimal point is the C locale's: a comma ends the number.
    EXPECT_EQ(ValueStringConverter::StringToDouble(u"0,5"), 0.0);
}

TEST(ValueStringConverter, ExactDoublesCutTrailingZerosAndPoint) {
    EXPECT_EQ(Utf8(ValueStringConverter::ExactDoubleToString(1.0)), "1");
    EXPECT_EQ(Utf8(ValueStringConverter::ExactDoubleToString(0.0)), "0");
    EXPECT_EQ(Utf8(ValueStringConverter::ExactDoubleToString(100.0)), "100");
    EXPECT_EQ(Utf8(ValueStringConverter::ExactDoubleToString(-2.5)), "-2.5");
    EXPECT_EQ(Utf8(ValueStringConverter::ExactDoubleToString(0.1)), "0.10000000000000000555111512312578");
    EXPECT_EQ(Utf8(ValueStringConverter::ExactDoubleToString(1.0 / 3.0)), "0.33333333333333331482961625624739");
    for (double value : {0.1, 1.0 / 3.0, -123.456789012345678, 25.4, 1e-5, 1e15 + 0.5}) {
        EXPECT_EQ(ValueStringConverter::StringToDouble(ValueStringConverter::ExactDoubleToString(value)), value);
    }
}

TEST(ValueStringConverter, MatrixIsSixteenValuesInRowOrder) {
    EXPECT_EQ(Utf8(ValueStringConverter::MatrixToString(Matrix::Identity())), "1,0,0,0,0,1,0,0,0,0,1,0,0,0,0,1");
    Matrix moved = Matrix::Translation(10.0, -2.5, 0.1);
    EXPECT_EQ(Utf8(ValueStringConverter::MatrixToString(moved)),
              "1,0,0,10,0,1,0,-2.5,0,0,1,0.10000000000000000555111512312578,0,0,0,1");

    Matrix thirds;
    for (std::size_t i = 0; i < 16; ++i) thirds.GetData()[i] = (static_cast<double>(i) + 1.0) / 3.0;
    const tqstring text = ValueStringConverter::MatrixToString(thirds);
    EXPECT_EQ(Utf8(text).substr(0, 35), "0.33333333333333331482961625624739,");
    EXPECT_TRUE(ValueStringConverter::StringToMatrix(text) == thirds);
}

TEST(ValueStringConverter, MatrixReadsTokensZeroToFifteen) {
    const Matrix read = ValueStringConverter::StringToMatrix(u"1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,99");
    EXPECT_EQ(read(0, 1), 2.0);
    EXPECT_EQ(read(1, 0), 5.0);
    EXPECT_EQ(read(3, 3), 16.0);
    EXPECT_THROW_CODE(ValueStringConverter::StringToMatrix(u"1,0,0,0,0,1,0,0,0,0,1,0,0,0,0"), misc::tqmiscException,
                      2579, kConversionFailed);
    EXPECT_THROW_CODE(ValueStringConverter::StringToMatrix(u"1,0,0,0,0,1,0,0,0,0,1,0,0,0,,1"), misc::tqmiscException,
                      2579, kConversionFailed);
}

TEST(ValueStringConverter, PointIsThreePlainDoubles) {
    const tqTPoint3d<double> point(1.0, -2.5, 1.0 / 3.0);
    EXPECT_EQ(Utf8(ValueStringConverter::PointToString(point)), "1.000000,-2.500000,0.333333");
    EXPECT_TRUE(ValueStringConverter::StringToPoint(u"1.000000,-2.500000,0.333333") ==
                tqTPoint3d<double>(1.0, -2.5, 0.333333));
    EXPECT_THROW_CODE(ValueStringConverter::StringToPoint(u"1,2"), misc::tqmiscException, 2579, kConversionFailed);
    EXPECT_THROW_CODE(ValueStringConverter::StringToPoint(u"1,x,2"), misc::tqmiscException, 2579, kConversionFailed);
}

TEST(ValueStringConverter, TruthValues) {
    EXPECT_EQ(Utf8(ValueStringConverter::BoolToString(true)), "true");
    EXPECT_EQ(Utf8(ValueStringConverter::BoolToString(false)), "false");
    EXPECT_TRUE(ValueStringConverter::StringToBool(u"true"));
    for (const char16_t* text : {u"false", u"TRUE", u"True", u"1", u"", u" true"}) {
        EXPECT_FALSE(ValueStringConverter::StringToBool(text)) << misc::to_utf8(text);
    }
}

TEST(ValueStringConverter, UnparsableTextFails) {
    for (const char16_t* text : {u"", u"abc", u" ", u"-", u".", u"x1"}) {
        EXPECT_THROW_CODE(ValueStringConverter::StringToDouble(text), misc::tqmiscException, 2579, kConversionFailed);
        EXPECT_THROW_CODE(ValueStringConverter::StringToInt(text), misc::tqmiscException, 2579, kConversionFailed);
        EXPECT_THROW_CODE(ValueStringConverter::StringToUInt64(text), misc::tqmiscException, 2579, kConversionFailed);
    }
    EXPECT_THROW_CODE(ValueStringConverter::StringToInt(u"2147483648"), misc::tqmiscException, 2579, kConversionFailed);
    EXPECT_THROW_CODE(ValueStringConverter::StringToUInt64(u"18446744073709551616"), misc::tqmiscException, 2579,
                      kConversionFailed);
    EXPECT_THROW_CODE(ValueStringConverter::StringToUInt64(u" -1"), misc::tqmiscException, 2579, kConversionFailed);
}

TEST(ValueStringConverter, ProcessLocaleDoesNotChangeTheDecimalPoint) {
    locale_t german = static_cast<locale_t>(nullptr);
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8", "fr_FR.utf8"}) {
        german = newlocale(LC_ALL_MASK, name, static_cast<locale_t>(nullptr));
        if (german != static_cast<locale_t>(nullptr)) break;
    }
    if (german == static_cast<locale_t>(nullptr)) GTEST_SKIP() << "no locale with a decimal comma is installed";
    const locale_t previous = uselocale(german);
    const std::string plain = Utf8(ValueStringConverter::DoubleToString(0.5));
    const std::string exact = Utf8(ValueStringConverter::ExactDoubleToString(0.25));
    const double read = ValueStringConverter::StringToDouble(u"0.5");
    uselocale(previous);
    freelocale(german);
    EXPECT_EQ(plain, "0.500000");
    EXPECT_EQ(exact, "0.25");
    EXPECT_EQ(read, 0.5);
}
