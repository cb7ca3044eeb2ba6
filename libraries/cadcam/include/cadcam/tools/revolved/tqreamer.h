// tqReamer: a reamer with an entry chamfer.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A reamer: a cylinder of the tool diameter whose bottom edge carries a 45° entry chamfer of radial size
/// Factor·R.
class TQ_EXPORT tqReamer : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken rule: the common ones, then
    /// 3469 unless 0 <= factor <= 1, 3470 unless the chamfer ends within the flutes.
    tqReamer(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
             double diameter, double fluteLength, double shoulderLength, double factor);
    /// With a given shoulder extender, whose own rules ran when it was made; 2187 unless its base length lies
    /// between flute and shoulder length.
    tqReamer(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
             double diameter, double fluteLength, double shoulderLength, double factor,
             const tqShoulderDefinitionExtender& extender);
    tqReamer(const tqReamer&) = default;
    tqReamer& operator=(const tqReamer&) = default;
    ~tqReamer() override;

    /// The chamfer's radial size as a share of the tool radius, in [0, 1].
    double GetFactor() const { return m_factor; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqReamer& other) const;
    bool operator!=(const tqReamer& other) const { return !(*this == other); }

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqReamer(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
             double diameter, double fluteLength, double shoulderLength, double factor,
             const tqShoulderDefinitionExtender* extender);

    double m_factor;
};

}  // namespace cadcam
