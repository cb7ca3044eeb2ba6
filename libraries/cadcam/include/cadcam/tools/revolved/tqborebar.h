// tqBoreBar: a boring bar.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A boring bar: shaped as a dovetail mill, a flat bottom of the tool diameter whose side narrows upward by the
/// taper angle (a back-tapered bar), with a rounded bottom corner.
class TQ_EXPORT tqBoreBar : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken rule: the common ones,
    /// then 2109, 2163, 2122, 2024, 3476.
    tqBoreBar(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
              double diameter, double fluteLength, double shoulderLength, double cornerRadius,
              CornerRadiusType cornerRadiusType, double taperAngle);
    /// With a given shoulder extender.
    tqBoreBar(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
              double diameter, double fluteLength, double shoulderLength, double cornerRadius,
              CornerRadiusType cornerRadiusType, double taperAngle, const tqShoulderDefinitionExtender& extender);
    tqBoreBar(const tqBoreBar&) = default;
    tqBoreBar& operator=(const tqBoreBar&) = default;
    ~tqBoreBar() override;

    /// The radius of the bottom corner as given (the full type computes its own).
    double GetCornerRadius() const { return m_cornerRadius; }
    /// How the bottom corner is rounded.
    CornerRadiusType GetCornerRadiusType() const { return m_cornerRadiusType; }
    /// The angle in degrees between the side and the axis.
    double GetTaperAngle() const { return m_taperAngle; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqBoreBar& other) const;
    bool operator!=(const tqBoreBar& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqBoreBar(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
              double diameter, double fluteLength, double shoulderLength, double cornerRadius,
              CornerRadiusType cornerRadiusType, double taperAngle, const tqShoulderDefinitionExtender* extender);

    double m_cornerRadius;
    CornerRadiusType m_cornerRadiusType;
    double m_taperAngle;
};

}  // namespace cadcam
