// tqCSink: a countersink.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A countersink: a flat tip of the bottom diameter, a cone of the tip angle up to the tool diameter,
/// rounded into the cylindrical side.
class TQ_EXPORT tqCSink : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken rule: the common ones, then
    /// 2109 for an unknown corner radius type, 3466 for CRT_FULL, 2105 unless bottomDiameter >= 0, 3465 unless
    /// bottomDiameter <= diameter, 2163 unless cornerRadius >= 0, 2117 unless diameter >= twice the corner radius
    /// in use, 2113 unless 1 <= tipAngle <= 180, 2112 unless the cone and its rounded corner end within the flutes.
    tqCSink(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
            double diameter, double fluteLength, double shoulderLength, double cornerRadius,
            CornerRadiusType cornerRadiusType, double tipAngle, double bottomDiameter);
    /// With a given shoulder extender, whose own rules ran when it was made; 2187 unless its base length lies
    /// between flute and shoulder length.
    tqCSink(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
            double diameter, double fluteLength, double shoulderLength, double cornerRadius,
            CornerRadiusType cornerRadiusType, double tipAngle, double bottomDiameter,
            const tqShoulderDefinitionExtender& extender);
    tqCSink(const tqCSink&) = default;
    tqCSink& operator=(const tqCSink&) = default;
    ~tqCSink() override;

    /// The radius at the corner of cone and side; read for CRT_CORNER.
    double GetCornerRadius() const { return m_cornerRadius; }
    /// How the corner of cone and side is rounded; CRT_FULL is not supported.
    CornerRadiusType GetCornerRadiusType() const { return m_cornerRadiusType; }
    /// The included angle of the cone, in degrees.
    double GetTipAngle() const { return m_tipAngle; }
    /// The diameter of the flat tip.
    double GetBottomDiameter() const { return m_bottomDiameter; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqCSink& other) const;
    bool operator!=(const tqCSink& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqCSink(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
            double diameter, double fluteLength, double shoulderLength, double cornerRadius,
            CornerRadiusType cornerRadiusType, double tipAngle, double bottomDiameter,
            const tqShoulderDefinitionExtender* extender);

    double m_cornerRadius;
    CornerRadiusType m_cornerRadiusType;
    double m_tipAngle;
    double m_bottomDiameter;
};

}  // namespace cadcam
