// tqSquareTurningTool: a square turning insert.
#pragma once

#include "cadcam/tools/tqtypedextrudedtool.h"

namespace cadcam {

/// A square turning insert: a regular polygon of 4 sides around its inscribed circle, every corner rounded.
class TQ_EXPORT tqSquareTurningTool : public tqTypedExtrudedTool {
public:
    /// Throws tqcadcamException for the first broken rule: the family's (2337, 2338), then 2342 unless
    /// cornerRadius > 0, 2343 unless inscribedCircleDiameter > 0, 2344 unless the corner radius is below half of it.
    tqSquareTurningTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                        double insertThickness, double cornerRadius, double inscribedCircleDiameter);
    tqSquareTurningTool(const tqSquareTurningTool&) = default;
    tqSquareTurningTool& operator=(const tqSquareTurningTool&) = default;
    ~tqSquareTurningTool() override;

    /// The radius of every corner.
    double GetCornerRadius() const { return m_cornerRadius; }
    /// The diameter of the circle inscribed in the insert.
    double GetInscribedCircleDiameter() const { return m_inscribedCircleDiameter; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqSquareTurningTool& other) const;
    bool operator!=(const tqSquareTurningTool& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;
    tq2dContour<double> MakeInsertContour() const override;

private:
    double m_cornerRadius;
    double m_inscribedCircleDiameter;
};

}  // namespace cadcam
