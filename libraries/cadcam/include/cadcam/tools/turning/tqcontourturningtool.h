// tqContourTurningTool: a turning insert given by the closed contour of its turning solid.
#pragma once

#include "cadcam/tools/solids/tqcontourturningsoliddefinition.h"
#include "cadcam/tools/tqtypedextrudedtool.h"

namespace cadcam {

/// A turning insert given by the closed contour of its turning solid, extruded by the insert thickness.
class TQ_EXPORT tqContourTurningTool : public tqTypedExtrudedTool {
public:
    /// Throws tqcadcamException for the family's rules (2337, 2338); the contour was checked when its solid was
    /// made. The tool keeps its own copy of the solid.
    tqContourTurningTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                         double insertThickness, const tqContourTurningSolidDefinition<double>& contourSolid);
    tqContourTurningTool(const tqContourTurningTool&) = default;
    tqContourTurningTool& operator=(const tqContourTurningTool&) = default;
    ~tqContourTurningTool() override;

    /// The solid whose contour is the insert's outline.
    const tqContourTurningSolidDefinition<double>& GetContourSolid() const { return m_contourSolid; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqContourTurningTool& other) const;
    bool operator!=(const tqContourTurningTool& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;
    tq2dContour<double> MakeInsertContour() const override;

private:
    tqContourTurningSolidDefinition<double> m_contourSolid;
};

}  // namespace cadcam
