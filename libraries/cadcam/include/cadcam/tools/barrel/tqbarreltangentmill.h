// tqBarrelTangentMill: a barrel mill tangent to its tip ball.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A barrel mill tangent to its tip ball: a ball of LowerRadius on the axis, a barrel arc of ProfileRadius
/// whose widest point gives the tool diameter, narrowing to UpperDiameter, then straight up to the flute length.
class TQ_EXPORT tqBarrelTangentMill : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken rule.
    tqBarrelTangentMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                        double diameter, double fluteLength, double shoulderLength, double upperDiameter,
                        double profileRadius, double lowerRadius);
    /// With a given shoulder extender, whose own rules ran when it was made.
    tqBarrelTangentMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                        double diameter, double fluteLength, double shoulderLength, double upperDiameter,
                        double profileRadius, double lowerRadius, const tqShoulderDefinitionExtender& extender);
    tqBarrelTangentMill(const tqBarrelTangentMill&) = default;
    tqBarrelTangentMill& operator=(const tqBarrelTangentMill&) = default;
    ~tqBarrelTangentMill() override;

    /// The diameter the barrel narrows to above its widest point.
    double GetUpperDiameter() const { return m_upperDiameter; }
    /// The radius of the barrel arc.
    double GetProfileRadius() const { return m_profileRadius; }
    /// The radius of the tip ball.
    double GetLowerRadius() const { return m_lowerRadius; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqBarrelTangentMill& other) const;
    bool operator!=(const tqBarrelTangentMill& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqBarrelTangentMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                        double diameter, double fluteLength, double shoulderLength, double upperDiameter,
                        double profileRadius, double lowerRadius, const tqShoulderDefinitionExtender* extender);

    double m_upperDiameter;
    double m_profileRadius;
    double m_lowerRadius;
};

}  // namespace cadcam
