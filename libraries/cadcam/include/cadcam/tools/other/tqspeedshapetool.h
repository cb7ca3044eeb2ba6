// tqSpeedShapeTool: a speed shape tool, carried as an envelope of its sizes.
#pragma once

#include "cadcam/tools/tqtool.h"

namespace cadcam {

template <class T>
class tqCuttingPartDefinition;

/// A speed shape tool, carried as an envelope of its sizes: a block of Width by Length in the turning plane,
/// Depth thick. The other sizes and angles are carried without a shape.
class TQ_EXPORT tqSpeedShapeTool : public tqTool {
public:
    using CuttingPartPointer = misc::tqAutoPointer<tqCuttingPartDefinition<double>>;

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

    /// The envelope as a cutting part: the rectangle [-Width/2, Width/2] x [0, Length] in the turning plane
    /// extruded over y from -Depth to 0; a solid without contour when a size is not > 0. Never null once the
    /// tool is built.
    const CuttingPartPointer& GetCuttingPart() const { return m_cuttingPart; }

    void AcceptBranchVisitor(tqToolBranchVisitor& visitor) const override;
    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqSpeedShapeTool& other) const;
    bool operator!=(const tqSpeedShapeTool& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Makes the cutting part from the parameters, in the given units.
    void BuildCuttingPart(measures::tqUnitsFactory::Units units);

    double m_width;
    double m_length;
    double m_cornerRadius;
    double m_conicLength;
    double m_conicAngle;
    double m_rampAngle;
    double m_arcRadius;
    double m_depth;
    CuttingPartPointer m_cuttingPart;
};

}  // namespace cadcam
