// ObjectStringConverter: the texts that stand for the model's enumerations in a document.
#pragma once

#include "measures/tqunitsfactory.h"
#include "misc/tqstring.h"

namespace tqWorkRig {

using misc::tqstring;

/// Converts enumerations of the model to their document texts and back; unknown values and texts throw.
class ObjectStringConverter {
public:
    /// "METRIC" for metric, "INCH" for inch; any other value throws tqException code 0.
    static tqstring UnitSystemToString(measures::tqUnitsFactory::Units units);
    /// Metric for exactly "METRIC", inch for exactly "INCH" (no case folding, no trimming); else throws.
    static measures::tqUnitsFactory::Units StringToUnitSystem(const tqstring& text);
};

}  // namespace tqWorkRig
