// tqPotGrinderTool: a pot grinder, a cylindrical cutting envelope with only the common parameters.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A pot grinder, a cylindrical cutting envelope with only the common parameters.
class TQ_EXPORT tqPotGrinderTool : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken common rule.
    tqPotGrinderTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                     double diameter, double fluteLength, double shoulderLength);
    /// With a given shoulder extender, whose own rules ran when it was made; 2187 unless its base length lies
    /// between flute and shoulder length.
    tqPotGrinderTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                     double diameter, double fluteLength, double shoulderLength,
                     const tqShoulderDefinitionExtender& extender);
    tqPotGrinderTool(const tqPotGrinderTool&) = default;
    tqPotGrinderTool& operator=(const tqPotGrinderTool&) = default;
    ~tqPotGrinderTool() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqPotGrinderTool& other) const;
    bool operator!=(const tqPotGrinderTool& other) const { return !(*this == other); }

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqPotGrinderTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                     double diameter, double fluteLength, double shoulderLength,
                     const tqShoulderDefinitionExtender* extender);
};

}  // namespace cadcam
