// tqDiamondTurningTool: a rhombic turning insert.
#pragma once

#include "cadcam/tools/tqtypedextrudedtool.h"

namespace cadcam {

/// A rhombic turning insert: its inscribed circle, the acute form angle at the working corner, every corner rounded.
class TQ_EXPORT tqDiamondTurningTool : public tqTypedExtrudedTool {
public:
    /// Throws tqcadcamException for the first broken rule: the family's (2337, 2338), then 2342 unless
    /// cornerRadius > 0, 2343 unless inscribedCircleDiameter > 0, 2344 unless the corner radius is below half of
    /// it, 2346 unless 0 < formAngle < 90.
    tqDiamondTurningTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                         double insertThickness, double cornerRadius, double inscribedCircleDiameter, double formAngle);
    tqDiamondTurningTool(const tqDiamondTurningTool&) = default;
    tqDiamondTurningTool& operator=(const tqDiamondTurningTool&) = default;
    ~tqDiamondTurningTool() override;

    /// The radius of every corner.
    double GetCornerRadius() const { return m_cornerRadius; }
    /// The diameter of the circle inscribed in the insert.
    double GetInscribedCircleDiameter() const { return m_inscribedCircleDiameter; }
    /// The acute angle of the rhombus in degrees, at the working corner and the one opposite.
    double GetFormAngle() const { return m_formAngle; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqDiamondTurningTool& other) const;
    bool operator!=(const tqDiamondTurningTool& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;
    tq2dContour<double> MakeInsertContour() const override;

private:
    double m_cornerRadius;
    double m_inscribedCircleDiameter;
    double m_formAngle;
};

}  // namespace cadcam
