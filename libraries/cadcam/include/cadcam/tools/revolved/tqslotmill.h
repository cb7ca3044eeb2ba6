// tqSlotMill: a slot mill (a disc with rounded corners).
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A slot mill: a disc of the tool diameter, as high as the flutes, whose lower and upper corners are rounded
/// with the same radius.
class TQ_EXPORT tqSlotMill : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken rule: the common ones
    /// (with 2336 for the corner type corner), then 2109, 2163, 2125 and 3424 (corner type corner).
    tqSlotMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
               double diameter, double fluteLength, double shoulderLength, double cornerRadius,
               CornerRadiusType cornerRadiusType);
    /// With a given shoulder extender.
    tqSlotMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
               double diameter, double fluteLength, double shoulderLength, double cornerRadius,
               CornerRadiusType cornerRadiusType, const tqShoulderDefinitionExtender& extender);
    tqSlotMill(const tqSlotMill&) = default;
    tqSlotMill& operator=(const tqSlotMill&) = default;
    ~tqSlotMill() override;

    /// The radius of both disc corners as given (the full type computes its own).
    double GetCornerRadius() const { return m_cornerRadius; }
    /// How the disc corners are rounded.
    CornerRadiusType GetCornerRadiusType() const { return m_cornerRadiusType; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqSlotMill& other) const;
    bool operator!=(const tqSlotMill& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqSlotMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
               double diameter, double fluteLength, double shoulderLength, double cornerRadius,
               CornerRadiusType cornerRadiusType, const tqShoulderDefinitionExtender* extender);

    double m_cornerRadius;
    CornerRadiusType m_cornerRadiusType;
};

}  // namespace cadcam
