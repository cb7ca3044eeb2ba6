// ObjectStringConverter: unit systems to document text and back.
#include "persistence/document/objectstringconverter.h"

#include "misc/tqexception.h"

namespace tqWorkRig {

namespace {
constexpr const char16_t kMetric[] = u"METRIC";
constexpr const char16_t kInch[] = u"INCH";
}  // namespace

tqstring ObjectStringConverter::UnitSystemToString(measures::tqUnitsFactory::Units units) {
    switch (units) {
        case measures::tqUnitsFactory::Metric: return tqstring(kMetric);
        case measures::tqUnitsFactory::Inch: return tqstring(kInch);
    }
    misc::ThrowFailure(u"tqWorkRig::ObjectStringConverter::UnitSystemToString",
                       u"WR: XMLWriter::ConvertUnitsToString -> Unknown units!");
}

measures::tqUnitsFactory::Units ObjectStringConverter::StringToUnitSystem(const tqstring& text) {
    if (text == tqstring(kMetric)) return measures::tqUnitsFactory::Metric;
    if (text == tqstring(kInch)) return measures::tqUnitsFactory::Inch;
    // The reader's message has no scope tag of its own.
    misc::ThrowFailure(u"tqWRXMLReader::GetUnitsFromString -> Unknown units!");
}

}  // namespace tqWorkRig
