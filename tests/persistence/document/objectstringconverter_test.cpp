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

TEST(ObjectStringConverter, UnknownValuesAndInexactTextsFail) {
    for (const int units : {0, 3})
        EXPECT_THROW_CODE(ObjectStringConverter::UnitSystemToString(static_cast<tqUnitsFactory::Units>(units)),
                          misc::tqException, 0,
                          "tqWorkRig::ObjectStringConverter::UnitSystemToString: WR: XMLWriter::ConvertUnitsToString "
                          "-> Unknown units!");
    for (const char16_t* text : {u"metric", u"Inch", u" METRIC", u"INCH ", u"", u"MM"})
        EXPECT_THROW_CODE(ObjectStringConverter::StringToUnitSystem(text), misc::tqException, 0,
                          "tqWRXMLReader::GetUnitsFromString -> Unknown units!");
}
