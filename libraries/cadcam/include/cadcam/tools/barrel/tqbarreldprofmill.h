// tqBarrelDProfMill: a barrel mill with two profile radii.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A barrel mill with two profile radii: below the widest point an arc of LowerProfileRadius joined to the axis
/// by a tip ball of BlendRadius, above it an arc of UpperProfileRadius up to the flute length; both arcs are
/// vertical at the widest point, which gives the tool diameter.
class TQ_EXPORT tqBarrelDProfMill : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken rule.
    tqBarrelDProfMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                      double diameter, double fluteLength, double shoulderLength, double upperProfileRadius,
                      double blendRadius, double lowerProfileRadius);
    /// With a given shoulder extender, whose own rules ran when it was made.
    tqBarrelDProfMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                      double diameter, double fluteLength, double shoulderLength, double upperProfileRadius,
                      double blendRadius, double lowerProfileRadius, const tqShoulderDefinitionExtender& extender);
    tqBarrelDProfMill(const tqBarrelDProfMill&) = default;
    tqBarrelDProfMill& operator=(const tqBarrelDProfMill&) = default;
    ~tqBarrelDProfMill() override;

    /// The radius of the arc above the widest point.
    double GetUpperProfileRadius() const { return m_upperProfileRadius; }
    /// The radius of the tip ball that joins the lower arc to the axis.
    double GetBlendRadius() const { return m_blendRadius; }
    /// The radius of the arc below the widest point.
    double GetLowerProfileRadius() const { return m_lowerProfileRadius; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqBarrelDProfMill& other) const;
    bool operator!=(const tqBarrelDProfMill& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqBarrelDProfMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                      double diameter, double fluteLength, double shoulderLength, double upperProfileRadius,
                      double blendRadius, double lowerProfileRadius, const tqShoulderDefinitionExtender* extender);

    double m_upperProfileRadius;
    double m_blendRadius;
    double m_lowerProfileRadius;
};

}  // namespace cadcam
