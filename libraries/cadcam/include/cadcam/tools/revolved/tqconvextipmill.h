// tqConvexTipMill: a mill with a convex tip, a flat and a corner fillet.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A mill with a convex tip: a flat of the flatness radius, a tip arc of the convex tip radius tangent to the
/// flat, and a corner fillet into the cylindrical side.
class TQ_EXPORT tqConvexTipMill : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken rule: the common ones,
    /// then 2163, 2235, 2234, 2422.
    tqConvexTipMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                    double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                    double convexTipRadius, double flatnessRadius);
    /// With a given shoulder extender.
    tqConvexTipMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                    double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                    double convexTipRadius, double flatnessRadius, const tqShoulderDefinitionExtender& extender);
    tqConvexTipMill(const tqConvexTipMill&) = default;
    tqConvexTipMill& operator=(const tqConvexTipMill&) = default;
    ~tqConvexTipMill() override;

    /// The radius of the fillet between tip arc and side.
    double GetCornerRadius() const { return m_cornerRadius; }
    /// The radius of the tip arc.
    double GetConvexTipRadius() const { return m_convexTipRadius; }
    /// The radius of the flat at the tip.
    double GetFlatnessRadius() const { return m_flatnessRadius; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqConvexTipMill& other) const;
    bool operator!=(const tqConvexTipMill& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqConvexTipMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                    double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                    double convexTipRadius, double flatnessRadius, const tqShoulderDefinitionExtender* extender);

    double m_cornerRadius;
    double m_convexTipRadius;
    double m_flatnessRadius;
};

}  // namespace cadcam
