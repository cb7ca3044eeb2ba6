// tqBarrelTangentMillConicalShaft: a tangent barrel mill with a conical neck.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A tangent barrel mill with a conical neck: tip ball and barrel as tqBarrelTangentMill; above the widest point
/// the barrel runs on until its tangent leans by TaperAngle, and a cone narrowing upward at that angle runs on
/// for ConeLength along the axis. Its default shoulder extender reaches the shank diameter at the shoulder.
class TQ_EXPORT tqBarrelTangentMillConicalShaft : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken rule.
    tqBarrelTangentMillConicalShaft(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                    const HolderPointer& holder, double diameter, double fluteLength,
                                    double shoulderLength, double taperAngle, double profileRadius, double lowerRadius,
                                    double coneLength);
    /// With a given shoulder extender, whose own rules ran when it was made.
    tqBarrelTangentMillConicalShaft(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                    const HolderPointer& holder, double diameter, double fluteLength,
                                    double shoulderLength, double taperAngle, double profileRadius, double lowerRadius,
                                    double coneLength, const tqShoulderDefinitionExtender& extender);
    tqBarrelTangentMillConicalShaft(const tqBarrelTangentMillConicalShaft&) = default;
    tqBarrelTangentMillConicalShaft& operator=(const tqBarrelTangentMillConicalShaft&) = default;
    ~tqBarrelTangentMillConicalShaft() override;

    /// The neck cone's angle to the axis, in degrees.
    double GetTaperAngle() const { return m_taperAngle; }
    /// The radius of the barrel arc.
    double GetProfileRadius() const { return m_profileRadius; }
    /// The radius of the tip ball.
    double GetLowerRadius() const { return m_lowerRadius; }
    /// The neck cone's length along the axis.
    double GetConeLength() const { return m_coneLength; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqBarrelTangentMillConicalShaft& other) const;
    bool operator!=(const tqBarrelTangentMillConicalShaft& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqBarrelTangentMillConicalShaft(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                    const HolderPointer& holder, double diameter, double fluteLength,
                                    double shoulderLength, double taperAngle, double profileRadius, double lowerRadius,
                                    double coneLength, const tqShoulderDefinitionExtender* extender);

    double m_taperAngle;
    double m_profileRadius;
    double m_lowerRadius;
    double m_coneLength;
};

}  // namespace cadcam
