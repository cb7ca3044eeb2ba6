// tqBarrelBarrSecMill: a barrel segment mill on a shaft.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A barrel segment mill on a shaft: a barrel arc of ProfileRadius centred at CenterHeight, whose widest point
/// gives the tool diameter, blended into the flat bottom by LowerBlendRadius and into a shaft of ShaftDiameter
/// by UpperBlendRadius.
class TQ_EXPORT tqBarrelBarrSecMill : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken rule.
    tqBarrelBarrSecMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                        double diameter, double fluteLength, double shoulderLength, double shaftDiameter,
                        double upperBlendRadius, double profileRadius, double lowerBlendRadius, double centerHeight);
    /// With a given shoulder extender, whose own rules ran when it was made.
    tqBarrelBarrSecMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                        double diameter, double fluteLength, double shoulderLength, double shaftDiameter,
                        double upperBlendRadius, double profileRadius, double lowerBlendRadius, double centerHeight,
                        const tqShoulderDefinitionExtender& extender);
    tqBarrelBarrSecMill(const tqBarrelBarrSecMill&) = default;
    tqBarrelBarrSecMill& operator=(const tqBarrelBarrSecMill&) = default;
    ~tqBarrelBarrSecMill() override;

    /// The diameter of the shaft above the barrel.
    double GetShaftDiameter() const { return m_shaftDiameter; }
    /// The radius of the blend between barrel and shaft.
    double GetUpperBlendRadius() const { return m_upperBlendRadius; }
    /// The radius of the barrel arc.
    double GetProfileRadius() const { return m_profileRadius; }
    /// The radius of the blend between bottom and barrel.
    double GetLowerBlendRadius() const { return m_lowerBlendRadius; }
    /// The height of the barrel's centre, where the tool is widest.
    double GetCenterHeight() const { return m_centerHeight; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqBarrelBarrSecMill& other) const;
    bool operator!=(const tqBarrelBarrSecMill& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqBarrelBarrSecMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                        double diameter, double fluteLength, double shoulderLength, double shaftDiameter,
                        double upperBlendRadius, double profileRadius, double lowerBlendRadius, double centerHeight,
                        const tqShoulderDefinitionExtender* extender);

    double m_shaftDiameter;
    double m_upperBlendRadius;
    double m_profileRadius;
    double m_lowerBlendRadius;
    double m_centerHeight;
};

}  // namespace cadcam
