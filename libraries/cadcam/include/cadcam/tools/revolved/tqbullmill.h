// tqBullMill: a bull nose mill with a torus corner.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A bull nose mill: a flat bottom rounded into the side by a torus corner; a corner radius of half the
/// diameter makes it a ball.
class TQ_EXPORT tqBullMill : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken rule: the common ones, then
    /// 2163 unless cornerRadius >= 0, 2117 unless diameter >= 2·cornerRadius, 3476 unless cornerRadius <= fluteLength.
    tqBullMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
               double diameter, double fluteLength, double shoulderLength, double cornerRadius);
    /// With a given shoulder extender, whose own rules ran when it was made; 2187 unless its base length lies
    /// between flute and shoulder length.
    tqBullMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
               double diameter, double fluteLength, double shoulderLength, double cornerRadius,
               const tqShoulderDefinitionExtender& extender);
    tqBullMill(const tqBullMill&) = default;
    tqBullMill& operator=(const tqBullMill&) = default;
    ~tqBullMill() override;

    /// The radius of the torus corner.
    double GetCornerRadius() const { return m_cornerRadius; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqBullMill& other) const;
    bool operator!=(const tqBullMill& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqBullMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
               double diameter, double fluteLength, double shoulderLength, double cornerRadius,
               const tqShoulderDefinitionExtender* extender);

    double m_cornerRadius;
};

}  // namespace cadcam
