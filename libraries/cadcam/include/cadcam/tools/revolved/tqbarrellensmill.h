// tqBarrelLensMill: a lens-shaped barrel mill.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A lens mill: a convex tip arc centred on the axis, reaching the tool diameter through a corner fillet into the
/// cylindrical side (a convex tip mill without a flat).
class TQ_EXPORT tqBarrelLensMill : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken rule: the common ones,
    /// then 2163, 3431, 3432.
    tqBarrelLensMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                     double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                     double convexTipRadius);
    /// With a given shoulder extender.
    tqBarrelLensMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                     double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                     double convexTipRadius, const tqShoulderDefinitionExtender& extender);
    tqBarrelLensMill(const tqBarrelLensMill&) = default;
    tqBarrelLensMill& operator=(const tqBarrelLensMill&) = default;
    ~tqBarrelLensMill() override;

    /// The radius of the fillet between lens and side.
    double GetCornerRadius() const { return m_cornerRadius; }
    /// The radius of the lens.
    double GetConvexTipRadius() const { return m_convexTipRadius; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqBarrelLensMill& other) const;
    bool operator!=(const tqBarrelLensMill& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqBarrelLensMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                     double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                     double convexTipRadius, const tqShoulderDefinitionExtender* extender);

    double m_cornerRadius;
    double m_convexTipRadius;
};

}  // namespace cadcam
