// The unit systems of the library and the factors between them.
#pragma once

#include <cstdint>

#include "misc/export.h"

namespace measures {

/// The unit systems and the factors between them.
class TQ_EXPORT tqUnitsFactory {
public:
    /// A 32-bit unit system: 1 metric (millimetres), 2 inch.
    enum Units : std::int32_t { Metric = 1, Inch = 2 };

    /// True for the two known unit systems.
    static bool IsValid(Units units) { return units == Metric || units == Inch; }
    /// The factor that turns lengths in `from` into lengths in `to`; an unknown pair throws 2146 "Undefined ScaleFactor".
    static double GetScaleFactor(Units from, Units to);
};

}  // namespace measures
