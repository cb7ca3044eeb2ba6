// tqFaceMill: a face mill.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A face mill: a flat bottom of the effective diameter, a lead face at the taper angle from the axis out to the
/// outside diameter, then a cylinder; the bottom corner is rounded.
class TQ_EXPORT tqFaceMill : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken rule: the common ones,
    /// then 2109, 2163, 2122, 2123.
    tqFaceMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
               double diameter, double fluteLength, double shoulderLength, double cornerRadius,
               CornerRadiusType cornerRadiusType, double outsideDiameter, double taperAngle);
    /// With a given shoulder extender.
    tqFaceMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
               double diameter, double fluteLength, double shoulderLength, double cornerRadius,
               CornerRadiusType cornerRadiusType, double outsideDiameter, double taperAngle,
               const tqShoulderDefinitionExtender& extender);
    tqFaceMill(const tqFaceMill&) = default;
    tqFaceMill& operator=(const tqFaceMill&) = default;
    ~tqFaceMill() override;

    /// The radius of the bottom corner as given (the full type computes its own).
    double GetCornerRadius() const { return m_cornerRadius; }
    /// How the bottom corner is rounded.
    CornerRadiusType GetCornerRadiusType() const { return m_cornerRadiusType; }
    /// The diameter the lead face reaches.
    double GetOutsideDiameter() const { return m_outsideDiameter; }
    /// The angle in degrees between the lead face and the axis.
    double GetTaperAngle() const { return m_taperAngle; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqFaceMill& other) const;
    bool operator!=(const tqFaceMill& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqFaceMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
               double diameter, double fluteLength, double shoulderLength, double cornerRadius,
               CornerRadiusType cornerRadiusType, double outsideDiameter, double taperAngle,
               const tqShoulderDefinitionExtender* extender);

    double m_cornerRadius;
    CornerRadiusType m_cornerRadiusType;
    double m_outsideDiameter;
    double m_taperAngle;
};

}  // namespace cadcam
