// tqSpherMill: a sphere (ball) mill.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A sphere (ball) mill: a half ball of the tool diameter, then a cylinder up to the flute length.
class TQ_EXPORT tqSpherMill : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken common rule.
    tqSpherMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                double diameter, double fluteLength, double shoulderLength);
    /// With a given shoulder extender, whose own rules ran when it was made; 2187 unless its base length lies
    /// between flute and shoulder length.
    tqSpherMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                double diameter, double fluteLength, double shoulderLength,
                const tqShoulderDefinitionExtender& extender);
    tqSpherMill(const tqSpherMill&) = default;
    tqSpherMill& operator=(const tqSpherMill&) = default;
    ~tqSpherMill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqSpherMill& other) const;
    bool operator!=(const tqSpherMill& other) const { return !(*this == other); }

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqSpherMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                double diameter, double fluteLength, double shoulderLength,
                const tqShoulderDefinitionExtender* extender);
};

}  // namespace cadcam
