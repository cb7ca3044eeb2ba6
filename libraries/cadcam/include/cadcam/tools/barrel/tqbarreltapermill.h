// tqBarrelTaperMill: a barrel mill with a flat tip and a tapered neck.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A barrel mill with a flat tip and a tapered neck: a barrel arc of ProfileRadius rising from the flat of
/// FlatnessDiameter (rounded by LowerRadius), widest at the tool diameter, then narrowing to UpperDiameter where
/// a neck cone widening upward by TaperAngle leaves it, the junction rounded by UpperRadius.
class TQ_EXPORT tqBarrelTaperMill : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken rule.
    tqBarrelTaperMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                      double diameter, double fluteLength, double shoulderLength, double upperDiameter,
                      double taperAngle, double lowerRadius, double profileRadius, double upperRadius,
                      double flatnessDiameter);
    /// With a given shoulder extender, whose own rules ran when it was made.
    tqBarrelTaperMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                      double diameter, double fluteLength, double shoulderLength, double upperDiameter,
                      double taperAngle, double lowerRadius, double profileRadius, double upperRadius,
                      double flatnessDiameter, const tqShoulderDefinitionExtender& extender);
    tqBarrelTaperMill(const tqBarrelTaperMill&) = default;
    tqBarrelTaperMill& operator=(const tqBarrelTaperMill&) = default;
    ~tqBarrelTaperMill() override;

    /// The diameter of the neck where it leaves the barrel.
    double GetUpperDiameter() const { return m_upperDiameter; }
    /// The neck cone's angle to the axis, in degrees.
    double GetTaperAngle() const { return m_taperAngle; }
    /// The radius of the fillet between the flat and the barrel.
    double GetLowerRadius() const { return m_lowerRadius; }
    /// The radius of the barrel arc.
    double GetProfileRadius() const { return m_profileRadius; }
    /// The radius of the blend between barrel and neck.
    double GetUpperRadius() const { return m_upperRadius; }
    /// The diameter of the flat tip.
    double GetFlatnessDiameter() const { return m_flatnessDiameter; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqBarrelTaperMill& other) const;
    bool operator!=(const tqBarrelTaperMill& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqBarrelTaperMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                      double diameter, double fluteLength, double shoulderLength, double upperDiameter,
                      double taperAngle, double lowerRadius, double profileRadius, double upperRadius,
                      double flatnessDiameter, const tqShoulderDefinitionExtender* extender);

    double m_upperDiameter;
    double m_taperAngle;
    double m_lowerRadius;
    double m_profileRadius;
    double m_upperRadius;
    double m_flatnessDiameter;
};

}  // namespace cadcam
