// tqEndMill: a flat end mill.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A flat end mill: a cylinder of the tool diameter up to the flute length; only the common parameters.
class TQ_EXPORT tqEndMill : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken common rule.
    tqEndMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
              double diameter, double fluteLength, double shoulderLength);
    /// With a given shoulder extender, whose own rules ran when it was made.
    tqEndMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
              double diameter, double fluteLength, double shoulderLength,
              const tqShoulderDefinitionExtender& extender);
    tqEndMill(const tqEndMill&) = default;
    tqEndMill& operator=(const tqEndMill&) = default;
    ~tqEndMill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqEndMill& other) const;
    bool operator!=(const tqEndMill& other) const { return !(*this == other); }

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqEndMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
              double diameter, double fluteLength, double shoulderLength,
              const tqShoulderDefinitionExtender* extender);
};

}  // namespace cadcam
