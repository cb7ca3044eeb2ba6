// The unit system, its factors and its failures.
#include "measures/tqmeasurable.h"

#include "measures/tqmeasuresexception.h"

namespace measures {

double tqUnitsFactory::GetScaleFactor(Units from, Units to) {
    if (from == to && IsValid(from)) return 1.0;
    if (from == Inch && to == Metric) return 25.4;
    if (from == Metric && to == Inch) return 1.0 / 25.4;
    throw tqmeasuresException(tqmeasuresException::kUndefinedScaleFactor);
}

tqmeasuresException::tqmeasuresException(std::int32_t code, const misc::tqException* earlier)
    : misc::tqException(code, TextOf(code), earlier) {}

tqmeasuresException::~tqmeasuresException() = default;

void tqmeasuresException::Rethrow() const { throw misc::tqException(*this); }

misc::tqAutoPointer<misc::tqException> tqmeasuresException::Clone() const {
    return misc::tqAutoPointer<misc::tqException>(new tqmeasuresException(*this));
}

misc::tqstring tqmeasuresException::TextOf(std::int32_t code) {
    switch (code) {
        case kUnknownUnits: return u"Unknown Units";
        case kUndefinedScaleFactor: return u"Undefined ScaleFactor";
        default: return u"Unknown error.";
    }
}

tqMeasurable::tqMeasurable(tqUnitsFactory::Units units) : m_units(units) {
    if (!tqUnitsFactory::IsValid(units)) throw tqmeasuresException(tqmeasuresException::kUnknownUnits);
}

tqMeasurable::~tqMeasurable() = default;

void tqMeasurable::SetUnits(tqUnitsFactory::Units units, bool suppressScaling) {
    if (units == m_units) return;
    if (!tqUnitsFactory::IsValid(units)) throw tqmeasuresException(tqmeasuresException::kUnknownUnits);
    const double factor = suppressScaling ? 1.0 : tqUnitsFactory::GetScaleFactor(m_units, units);
    m_units = units;
    Scale(units, factor);
}

void tqMeasurable::ScaleNested(tqMeasurable& nested, tqUnitsFactory::Units units, const double& factor) {
    nested.m_units = units;
    nested.Scale(units, factor);
}

}  // namespace measures
