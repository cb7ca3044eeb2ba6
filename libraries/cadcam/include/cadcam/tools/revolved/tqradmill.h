// tqRadMill: a corner rounding mill.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A corner rounding mill: a pilot of radius R − cornerRadius whose bottom edge turns up into the tool
/// radius along a concave quarter circle.
class TQ_EXPORT tqRadMill : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken common rule; 2336 (among
    /// them) unless 0 <= cornerRadius < diameter / 2.
    tqRadMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
              double diameter, double fluteLength, double shoulderLength, double cornerRadius);
    /// With a given shoulder extender, whose own rules ran when it was made; 2187 unless its base length lies
    /// between flute and shoulder length.
    tqRadMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
              double diameter, double fluteLength, double shoulderLength, double cornerRadius,
              const tqShoulderDefinitionExtender& extender);
    tqRadMill(const tqRadMill&) = default;
    tqRadMill& operator=(const tqRadMill&) = default;
    ~tqRadMill() override;

    /// The radius of the concave arc that rounds the work's corner.
    double GetCornerRadius() const { return m_cornerRadius; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqRadMill& other) const;
    bool operator!=(const tqRadMill& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqRadMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
              double diameter, double fluteLength, double shoulderLength, double cornerRadius,
              const tqShoulderDefinitionExtender* extender);
    /// The common rules with 2336 on the corner radius.
    static CommonRules RoundingRules(double cornerRadius);

    double m_cornerRadius;
};

}  // namespace cadcam
