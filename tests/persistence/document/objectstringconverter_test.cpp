// ObjectStringConverter: unit systems to document text and back, exact texts only.
#include "persistence/document/objectstringconverter.h"

#include "support/tqtest.h"

using measures::tqUnitsFactory;
using misc::tqstring;
using tqWorkRig::ObjectStringConverter;

TEST(ObjectStringConverter, UnitSystemsRoundTrip) {
    EXPECT_EQ(ObjectStringConverter::UnitSystemToString(tqUnitsFactory::Metric), tqstring(u"METRIC"));
    EXPECT_EQ(ObjectStringConverter::UnitSystemToString(tqUnitsFactory::Inch), tqstring(u"INCH"));
    EXPECT_EQ(ObjectStringConverter::StringToUnitSystem(u"METRIC"), tqUnitsFactory::Metric);
    EXPECT_EQ(ObjectStringConverter::StringToUnitSystem(u"INCH"), tqUnitsFactory::Inch);
}

TEST(ObjectStringConverter, UnknownUnitValueFails) {
    EXPECT_THROW_CODE(ObjectStringConverter::UnitSystemToString(static_cast<tqUnitsFactory::Units>(0)),
                      misc::tqException, 0,
                      "tqWorkRig::ObjectStringConverter::UnitSystemToString: WR: XMLWriter::ConvertUnitsToString "
                      "-> Unknown units!");
    EXPECT_THROW_MSG(ObjectStringConverter::UnitSystemToString(static_cast<tqUnitsFactory::Units>(3)),
                     misc::tqException,
                     "tqWorkRig::ObjectStringConverter::UnitSystemToString: WR: XMLWriter::ConvertUnitsToString "
                     "-> Unknown units!");
}

TEST(ObjectStringConverter, TextMustMatchExactly) {
    for (const char16_t* text : {u"metric", u"Inch", u" METRIC", u"INCH ", u"", u"MM"}) {
        EXPECT_THROW_CODE(ObjectStringConverter::StringToUnitSystem(text), misc::tqException, 0,
                          "tqWRXMLReader::GetUnitsFromString -> Unknown units!");
    }
}
