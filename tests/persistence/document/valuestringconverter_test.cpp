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

TEST(ValueStringConverter, IntegersAreDecimalAndReadAsPercentD) {
    EXPECT_EQ(Utf8(ValueStringConverter::IntToString(0)), "0");
    EXPECT_EQ(Utf8(ValueStringConverter::IntToString(-17)), "-17");
    EXPECT_EQ(Utf8(ValueStringConverter::IntToString(INT_MAX)), "2147483647");
    EXPECT_EQ(Utf8(ValueStringConverter::UInt64ToString(UINT64_MAX)), "18446744073709551615");
    EXPECT_EQ(ValueStringConverter::StringToUInt64(u"18446744073709551615"), UINT64_MAX);
    // Ids are numbers when read, so "007" and "7" are the same.
    EXPECT_EQ(ValueStringConverter::StringToUInt64(u"007"), 7u);
    // Reading stops at the first character that is no digit: a colour of "0.5" is 0.
    const std::pair<const char16_t*, int> ints[] = {
        {u"-2147483648", INT_MIN}, {u" 42", 42}, {u"+5", 5}, {u"0.5", 0}, {u"12abc", 12}};
    for (const auto& c : ints) EXPECT_EQ(ValueStringConverter::StringToInt(c.first), c.second) << Utf8(c.first);
}

TEST(ValueStringConverter, PlainDoublesHaveSixDecimalsAndReadAsPercentLf) {
    const std::pair<double, const char*> plain[] = {{1.0 / 3.0, "0.333333"},
                                                    {2.5, "2.500000"},
                                                    {-1e6, "-1000000.000000"},
                                                    {0.0000004, "0.000000"},
                                                    {0.0000005000001, "0.000001"}};
    for (const auto& c : plain) EXPECT_EQ(Utf8(ValueStringConverter::DoubleToString(c.first)), c.second);
    // A "Diameter" of 1/3 reads back as 0.333333: six decimals lose precision by design. The decimal point is the
    // C locale's: a comma ends the number.
    const std::pair<const char16_t*, double> read[] = {
        {u"0.333333", 0.333333}, {u"1e3", 1000.0}, {u"  -2.5xyz", -2.5}, {u"7", 7.0}, {u"0,5", 0.0}};
    for (const auto& c : read) EXPECT_EQ(ValueStringConverter::StringToDouble(c.first), c.second) << Utf8(c.first);
}

TEST(ValueStringConverter, ExactDoublesCutTrailingZerosAndPoint) {
    const std::pair<double, const char*> exact[] = {{1.0, "1"},
                                                    {0.0, "0"},
                                                    {100.0, "100"},
                                                    {-2.5, "-2.5"},
                                                    {0.1, "0.10000000000000000555111512312578"},
                                                    {1.0 / 3.0, "0.33333333333333331482961625624739"}};
    for (const auto& c : exact) EXPECT_EQ(Utf8(ValueStringConverter::ExactDoubleToString(c.first)), c.second);
    for (double value : {0.1, 1.0 / 3.0, -123.456789012345678, 25.4, 1e-5, 1e15 + 0.5})
        EXPECT_EQ(ValueStringConverter::StringToDouble(ValueStringConverter::ExactDoubleToString(value)), value);
}

TEST(ValueStringConverter, MatrixIsSixteenValuesInRowOrder) {
    EXPECT_EQ(Utf8(ValueStringConverter::MatrixToString(Matrix::Identity())), "1,0,0,0,0,1,0,0,0,0,1,0,0,0,0,1");
    EXPECT_EQ(Utf8(ValueStringConverter::MatrixToString(Matrix::Translation(10.0, -2.5, 0.1))),
              "1,0,0,10,0,1,0,-2.5,0,0,1,0.10000000000000000555111512312578,0,0,0,1");
    Matrix thirds;
    for (std::size_t i = 0; i < 16; ++i) thirds.GetData()[i] = (static_cast<double>(i) + 1.0) / 3.0;
    const tqstring text = ValueStringConverter::MatrixToString(thirds);
    EXPECT_EQ(Utf8(text).substr(0, 35), "0.33333333333333331482961625624739,");
    EXPECT_TRUE(ValueStringConverter::StringToMatrix(text) == thirds);
    // Tokens 0 to 15 are read, later ones ignored.
    const Matrix read = ValueStringConverter::StringToMatrix(u"1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,99");
    EXPECT_EQ(read(0, 1), 2.0);
    EXPECT_EQ(read(1, 0), 5.0);
    EXPECT_EQ(read(3, 3), 16.0);
}

TEST(ValueStringConverter, PointIsThreePlainDoubles) {
    EXPECT_EQ(Utf8(ValueStringConverter::PointToString({1.0, -2.5, 1.0 / 3.0})), "1.000000,-2.500000,0.333333");
    EXPECT_TRUE(ValueStringConverter::StringToPoint(u"1.000000,-2.500000,0.333333") ==
                tqTPoint3d<double>(1.0, -2.5, 0.333333));
}

TEST(ValueStringConverter, TruthValues) {
    EXPECT_EQ(Utf8(ValueStringConverter::BoolToString(true)), "true");
    EXPECT_EQ(Utf8(ValueStringConverter::BoolToString(false)), "false");
    EXPECT_TRUE(ValueStringConverter::StringToBool(u"true"));
    for (const char16_t* text : {u"false", u"TRUE", u"True", u"1", u"", u" true"})
        EXPECT_FALSE(ValueStringConverter::StringToBool(text)) << Utf8(text);
}

TEST(ValueStringConverter, UnparsableTextFails) {
    for (const char16_t* text : {u"", u"abc", u" ", u"-", u".", u"x1"}) {
        EXPECT_THROW_CODE(ValueStringConverter::StringToDouble(text), misc::tqmiscException, 2579, kConversionFailed);
        EXPECT_THROW_CODE(ValueStringConverter::StringToInt(text), misc::tqmiscException, 2579, kConversionFailed);
        EXPECT_THROW_CODE(ValueStringConverter::StringToUInt64(text), misc::tqmiscException, 2579, kConversionFailed);
    }
    EXPECT_THROW_CODE(ValueStringConverter::StringToInt(u"2147483648"), misc::tqmiscException, 2579, kConversionFailed);
    for (const char16_t* text : {u"18446744073709551616", u" -1"})
        EXPECT_THROW_CODE(ValueStringConverter::StringToUInt64(text), misc::tqmiscException, 2579, kConversionFailed);
    // Too few matrix tokens or an empty one; too few point coordinates or one that is no number.
    for (const char16_t* text : {u"1,0,0,0,0,1,0,0,0,0,1,0,0,0,0", u"1,0,0,0,0,1,0,0,0,0,1,0,0,0,,1"})
        EXPECT_THROW_CODE(ValueStringConverter::StringToMatrix(text), misc::tqmiscException, 2579, kConversionFailed);
    for (const char16_t* text : {u"1,2", u"1,x,2"})
        EXPECT_THROW_CODE(ValueStringConverter::StringToPoint(text), misc::tqmiscException, 2579, kConversionFailed);
}

TEST(ValueStringConverter, ProcessLocaleDoesNotChangeTheDecimalPoint) {
    locale_t comma = static_cast<locale_t>(nullptr);
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8", "fr_FR.utf8"})
        if (comma == static_cast<locale_t>(nullptr))
            comma = newlocale(LC_ALL_MASK, name, static_cast<locale_t>(nullptr));
    if (comma == static_cast<locale_t>(nullptr)) GTEST_SKIP() << "no locale with a decimal comma is installed";
    const locale_t previous = uselocale(comma);
    const std::string plain = Utf8(ValueStringConverter::DoubleToString(0.5));
    const std::string exact = Utf8(ValueStringConverter::ExactDoubleToString(0.25));
    const double read = ValueStringConverter::StringToDouble(u"0.5");
    uselocale(previous);
    freelocale(comma);
    EXPECT_EQ(plain, "0.500000");
    EXPECT_EQ(exact, "0.25");
    EXPECT_EQ(read, 0.5);
}
