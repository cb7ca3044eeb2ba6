// tqChamferMill: a chamfer mill.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A chamfer mill: a flat tip of the tool diameter and a cone at the taper angle (half the cone angle) from the
/// axis out to the outside diameter, then a cylinder; the tip corner is rounded.
class TQ_EXPORT tqChamferMill : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken rule: the common ones,
    /// then 2109, 2163, 2122, 2147, 2155, 2151, 2251, 2123, 3423, 2152 (corner type corner).
    tqChamferMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                  double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                  CornerRadiusType cornerRadiusType, double taperAngle, double outsideDiameter);
    /// With a given shoulder extender.
    tqChamferMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                  double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                  CornerRadiusType cornerRadiusType, double taperAngle, double outsideDiameter,
                  const tqShoulderDefinitionExtender& extender);
    tqChamferMill(const tqChamferMill&) = default;
    tqChamferMill& operator=(const tqChamferMill&) = default;
    ~tqChamferMill() override;

    /// The radius of the tip corner as given (the full type computes its own).
    double GetCornerRadius() const { return m_cornerRadius; }
    /// How the tip corner is rounded.
    CornerRadiusType GetCornerRadiusType() const { return m_cornerRadiusType; }
    /// Half the cone angle, in degrees.
    double GetTaperAngle() const { return m_taperAngle; }
    /// The diameter at the wide end of the chamfer.
    double GetOutsideDiameter() const { return m_outsideDiameter; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqChamferMill& other) const;
    bool operator!=(const tqChamferMill& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqChamferMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                  double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                  CornerRadiusType cornerRadiusType, double taperAngle, double outsideDiameter,
                  const tqShoulderDefinitionExtender* extender);

    double m_cornerRadius;
    CornerRadiusType m_cornerRadiusType;
    double m_taperAngle;
    double m_outsideDiameter;
};

}  // namespace cadcam
