// tqParallelogramTurningTool: a parallelogram turning insert.
#pragma once

#include "cadcam/tools/tqtypedextrudedtool.h"

namespace cadcam {

/// A parallelogram turning insert: the acute form angle at the working corner, the distance between the long
/// edges (Width) and the long edge's length (Length), every corner rounded.
class TQ_EXPORT tqParallelogramTurningTool : public tqTypedExtrudedTool {
public:
    /// Throws tqcadcamException for the first broken rule: the family's (2337, 2338), then 2342 unless
    /// cornerRadius > 0, 2346 unless 0 < formAngle < 90, 2347 unless width > 0, 2344 unless the corner radius is
    /// below half the width, 2348 unless a straight cutting edge is left (length > 2·cornerRadius / sin(formAngle)).
    tqParallelogramTurningTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                               const HolderPointer& holder, double insertThickness, double cornerRadius,
                               double formAngle, double width, double length);
    tqParallelogramTurningTool(const tqParallelogramTurningTool&) = default;
    tqParallelogramTurningTool& operator=(const tqParallelogramTurningTool&) = default;
    ~tqParallelogramTurningTool() override;

    /// The radius of every corner.
    double GetCornerRadius() const { return m_cornerRadius; }
    /// The acute angle in degrees, at the working corner and the one opposite.
    double GetFormAngle() const { return m_formAngle; }
    /// The distance between the two long edges.
    double GetWidth() const { return m_width; }
    /// The length of a long edge.
    double GetLength() const { return m_length; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqParallelogramTurningTool& other) const;
    bool operator!=(const tqParallelogramTurningTool& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;
    tq2dContour<double> MakeInsertContour() const override;

private:
    double m_cornerRadius;
    double m_formAngle;
    double m_width;
    double m_length;
};

}  // namespace cadcam
