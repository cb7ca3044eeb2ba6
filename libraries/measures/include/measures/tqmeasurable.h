// tqMeasurable: the base of everything that carries a unit system.
#pragma once

#include "measures/tqunitsfactory.h"
#include "misc/export.h"

namespace measures {

/// Carries a unit system; a change of it scales the object's lengths through Scale.
class TQ_EXPORT tqMeasurable {
public:
    /// Stores the units; anything but metric or inch throws tqmeasuresException 2141.
    explicit tqMeasurable(tqUnitsFactory::Units units);
    tqMeasurable(const tqMeasurable& other) = default;
    tqMeasurable& operator=(const tqMeasurable& other) = default;
    virtual ~tqMeasurable();

    tqUnitsFactory::Units GetUnits() const { return m_units; }
    /// Changes the unit system: nothing for the current one, 2141 for an unknown one; otherwise retags
    /// and calls Scale with the conversion factor, or with 1.0 when scaling is suppressed.
    void SetUnits(tqUnitsFactory::Units units, bool suppressScaling = false);

    /// The same object or the same unit system.
    bool operator==(const tqMeasurable& other) const { return this == &other || m_units == other.m_units; }
    bool operator!=(const tqMeasurable& other) const { return !(*this == other); }

protected:
    /// Multiplies the object's own lengths by factor; units is the new unit system.
    virtual void Scale(tqUnitsFactory::Units units, const double& factor) = 0;
    /// Retags a part of this object with units and scales it by factor, the factor of the whole object, so that
    /// nested parts follow their owner even when they carried other units.
    static void ScaleNested(tqMeasurable& nested, tqUnitsFactory::Units units, const double& factor);

private:
    tqUnitsFactory::Units m_units;
};

}  // namespace measures
