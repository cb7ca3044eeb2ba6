// tqBarrelMill: a barrel mill with an upper diameter and a corner fillet.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A barrel mill: a barrel arc of ProfileRadius whose widest point gives the tool diameter, narrowing to
/// UpperDiameter at the top of the flutes, joined to a flat bottom by a fillet of CornerRadius.
class TQ_EXPORT tqBarrelMill : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken rule.
    tqBarrelMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                 double diameter, double fluteLength, double shoulderLength, double upperDiameter, double cornerRadius,
                 double profileRadius);
    /// With a given shoulder extender, whose own rules ran when it was made.
    tqBarrelMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                 double diameter, double fluteLength, double shoulderLength, double upperDiameter, double cornerRadius,
                 double profileRadius, const tqShoulderDefinitionExtender& extender);
    tqBarrelMill(const tqBarrelMill&) = default;
    tqBarrelMill& operator=(const tqBarrelMill&) = default;
    ~tqBarrelMill() override;

    /// The diameter at the top of the flutes.
    double GetUpperDiameter() const { return m_upperDiameter; }
    /// The radius of the fillet between the bottom and the barrel.
    double GetCornerRadius() const { return m_cornerRadius; }
    /// The radius of the barrel arc.
    double GetProfileRadius() const { return m_profileRadius; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqBarrelMill& other) const;
    bool operator!=(const tqBarrelMill& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqBarrelMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                 double diameter, double fluteLength, double shoulderLength, double upperDiameter, double cornerRadius,
                 double profileRadius, const tqShoulderDefinitionExtender* extender);

    double m_upperDiameter;
    double m_cornerRadius;
    double m_profileRadius;
};

}  // namespace cadcam
