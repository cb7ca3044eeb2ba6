// tqCntrBore: a counterbore.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A counterbore: a cylinder of the tool diameter up to the flute length; only the common parameters.
class TQ_EXPORT tqCntrBore : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken common rule.
    tqCntrBore(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
               double diameter, double fluteLength, double shoulderLength);
    /// With a given shoulder extender, whose own rules ran when it was made; 2187 unless its base length lies
    /// between flute and shoulder length.
    tqCntrBore(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
               double diameter, double fluteLength, double shoulderLength,
               const tqShoulderDefinitionExtender& extender);
    tqCntrBore(const tqCntrBore&) = default;
    tqCntrBore& operator=(const tqCntrBore&) = default;
    ~tqCntrBore() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqCntrBore& other) const;
    bool operator!=(const tqCntrBore& other) const { return !(*this == other); }

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqCntrBore(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
               double diameter, double fluteLength, double shoulderLength,
               const tqShoulderDefinitionExtender* extender);
};

}  // namespace cadcam
