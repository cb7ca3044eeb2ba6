// tqSpeedShapeTool: a speed shape tool, carried as an envelope of its sizes.
#pragma once

#include "cadcam/tools/tqtool.h"

namespace cadcam {

/// A speed shape tool, carried as an envelope of its sizes: a block of Width by Length in the turning plane,
/// Depth thick. The other sizes and angles are carried without a shape.
class TQ_EXPORT tqSpeedShapeTool : public tqTool {
public:
    /// Takes any values: a speed shape tool has no rules.
    tqSpeedShapeTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                     double width, double length, double cornerRadius, double conicLength, double conicAngle,
                     double rampAngle, double arcRadius, double depth);
    tqSpeedShapeTool(const tqSpeedShapeTool&) = default;
    tqSpeedShapeTool& operator=(const tqSpeedShapeTool&) = default;
    ~tqSpeedShapeTool() override;

    double GetWidth() const { return m_width; }
    double GetLength() const { return m_length; }
    double GetCornerRadius() const { return m_cornerRadius; }
    double GetConicLength() const { return m_conicLength; }
    /// In degrees.
    double GetConicAngle() const { return m_conicAngle; }
    /// In degrees.
    double GetRampAngle() const { return m_rampAngle; }
    double GetArcRadius() const { return m_arcRadius; }
    double GetDepth() const { return m_depth; }

    void AcceptBranchVisitor(tqToolBranchVisitor& visitor) const override;
    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqSpeedShapeTool& other) const;
    bool operator!=(const tqSpeedShapeTool& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    double m_width;
    double m_length;
    double m_cornerRadius;
    double m_conicLength;
    double m_conicAngle;
    double m_rampAngle;
    double m_arcRadius;
    double m_depth;
};

}  // namespace cadcam
