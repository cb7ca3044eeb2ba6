// tqCtrDrill: a centre drill with pilot and shoulder.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A centre drill: a pointed pilot of the core diameter up to the core height, then a shoulder cone up to
/// the tool diameter and a cylinder up to the flute length.
class TQ_EXPORT tqCtrDrill : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken rule: the common ones, then
    /// 2113 unless 1 <= tipAngle <= 180, 2114 unless 1 <= shoulderAngle <= 180, 2279 unless 0 < coreDiameter <
    /// diameter and the pilot's point ends within coreHeight, 2112 unless the shoulder ends within the flutes.
    tqCtrDrill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
               double diameter, double fluteLength, double shoulderLength, double tipAngle, double shoulderAngle,
               double coreDiameter, double coreHeight);
    /// With a given shoulder extender, whose own rules ran when it was made; 2187 unless its base length lies
    /// between flute and shoulder length.
    tqCtrDrill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
               double diameter, double fluteLength, double shoulderLength, double tipAngle, double shoulderAngle,
               double coreDiameter, double coreHeight, const tqShoulderDefinitionExtender& extender);
    tqCtrDrill(const tqCtrDrill&) = default;
    tqCtrDrill& operator=(const tqCtrDrill&) = default;
    ~tqCtrDrill() override;

    /// The included angle of the pilot's point, in degrees.
    double GetTipAngle() const { return m_tipAngle; }
    /// The included angle of the shoulder cone, in degrees.
    double GetShoulderAngle() const { return m_shoulderAngle; }
    /// The diameter of the pilot.
    double GetCoreDiameter() const { return m_coreDiameter; }
    /// The height from the tip to the top of the pilot's cylinder.
    double GetCoreHeight() const { return m_coreHeight; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqCtrDrill& other) const;
    bool operator!=(const tqCtrDrill& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqCtrDrill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
               double diameter, double fluteLength, double shoulderLength, double tipAngle, double shoulderAngle,
               double coreDiameter, double coreHeight, const tqShoulderDefinitionExtender* extender);

    double m_tipAngle;
    double m_shoulderAngle;
    double m_coreDiameter;
    double m_coreHeight;
};

}  // namespace cadcam
