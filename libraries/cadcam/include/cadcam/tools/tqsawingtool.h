// tqSawingTool: the family of sawing tools, with their blade thickness.
#pragma once

#include "cadcam/tools/tqtool.h"

namespace cadcam {

/// A saw: a blade of a positive thickness.
class TQ_EXPORT tqSawingTool : public tqTool {
public:
    ~tqSawingTool() override;

    double GetBladeThickness() const { return m_bladeThickness; }

    void AcceptBranchVisitor(tqToolBranchVisitor& visitor) const override;
    /// Reaches the visitor's overload for tools of an abstract family; every concrete class overrides it.
    void AcceptVisitor(tqToolVisitor& visitor) const override;

protected:
    /// Throws tqcadcamException 2302 unless bladeThickness > 0.
    tqSawingTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                 double bladeThickness);
    tqSawingTool(const tqSawingTool&) = default;
    tqSawingTool& operator=(const tqSawingTool&) = default;

    /// The base's parameters and the blade thickness.
    bool BaseEquals(const tqSawingTool& other) const;
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    double m_bladeThickness;
};

}  // namespace cadcam
