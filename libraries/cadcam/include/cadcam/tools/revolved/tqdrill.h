// tqDrill: a twist drill.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A twist drill: a point cone of the tip angle up to the tool diameter, then a cylinder up to the flute length.
class TQ_EXPORT tqDrill : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken rule: the common ones, then
    /// 2228 unless 0 < tipAngle <= 180, 2112 unless the point ends within the flutes.
    tqDrill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
            double diameter, double fluteLength, double shoulderLength, double tipAngle);
    /// With a given shoulder extender, whose own rules ran when it was made; 2187 unless its base length lies
    /// between flute and shoulder length.
    tqDrill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
            double diameter, double fluteLength, double shoulderLength, double tipAngle,
            const tqShoulderDefinitionExtender& extender);
    tqDrill(const tqDrill&) = default;
    tqDrill& operator=(const tqDrill&) = default;
    ~tqDrill() override;

    /// The included angle of the point, in degrees.
    double GetTipAngle() const { return m_tipAngle; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqDrill& other) const;
    bool operator!=(const tqDrill& other) const { return !(*this == other); }

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqDrill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
            double diameter, double fluteLength, double shoulderLength, double tipAngle,
            const tqShoulderDefinitionExtender* extender);

    double m_tipAngle;
};

}  // namespace cadcam
