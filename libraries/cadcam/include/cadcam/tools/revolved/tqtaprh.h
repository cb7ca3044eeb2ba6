// tqTapRH: a right-handed tap.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A right-handed tap: a lead cone of the tip angle, rounded into the cylindrical side; the threads are
/// counted, not modelled.
class TQ_EXPORT tqTapRH : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken rule: the common ones, then
    /// 2109 for an unknown corner radius type, 2163 unless cornerRadius >= 0, 2113 unless 1 <= tipAngle <= 180,
    /// 2112 unless the lead and its rounded corner end within the flutes.
    tqTapRH(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
            double diameter, double fluteLength, double shoulderLength, double cornerRadius,
            CornerRadiusType cornerRadiusType, double tipAngle, int threadsNumber);
    /// With a given shoulder extender, whose own rules ran when it was made; 2187 unless its base length lies
    /// between flute and shoulder length.
    tqTapRH(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
            double diameter, double fluteLength, double shoulderLength, double cornerRadius,
            CornerRadiusType cornerRadiusType, double tipAngle, int threadsNumber,
            const tqShoulderDefinitionExtender& extender);
    tqTapRH(const tqTapRH&) = default;
    tqTapRH& operator=(const tqTapRH&) = default;
    ~tqTapRH() override;

    /// The radius at the corner of lead and side; read for CRT_CORNER.
    double GetCornerRadius() const { return m_cornerRadius; }
    /// How the corner of lead and side is rounded.
    CornerRadiusType GetCornerRadiusType() const { return m_cornerRadiusType; }
    /// The included angle of the lead cone, in degrees.
    double GetTipAngle() const { return m_tipAngle; }
    /// The number of threads; it shapes nothing.
    int GetThreadsNumber() const { return m_threadsNumber; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqTapRH& other) const;
    bool operator!=(const tqTapRH& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqTapRH(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
            double diameter, double fluteLength, double shoulderLength, double cornerRadius,
            CornerRadiusType cornerRadiusType, double tipAngle, int threadsNumber,
            const tqShoulderDefinitionExtender* extender);

    double m_cornerRadius;
    CornerRadiusType m_cornerRadiusType;
    double m_tipAngle;
    int m_threadsNumber;
};

}  // namespace cadcam
