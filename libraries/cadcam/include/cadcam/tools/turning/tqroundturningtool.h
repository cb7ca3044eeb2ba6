// tqRoundTurningTool: a round turning insert.
#pragma once

#include "cadcam/tools/tqtypedextrudedtool.h"

namespace cadcam {

/// A round turning insert: a disc of the given diameter.
class TQ_EXPORT tqRoundTurningTool : public tqTypedExtrudedTool {
public:
    /// Throws tqcadcamException for the first broken rule: the family's (2337, 2338), then 2349 unless
    /// diameter > 0.
    tqRoundTurningTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double insertThickness, double diameter);
    tqRoundTurningTool(const tqRoundTurningTool&) = default;
    tqRoundTurningTool& operator=(const tqRoundTurningTool&) = default;
    ~tqRoundTurningTool() override;

    /// The diameter of the disc.
    double GetDiameter() const { return m_diameter; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqRoundTurningTool& other) const;
    bool operator!=(const tqRoundTurningTool& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;
    tq2dContour<double> MakeInsertContour() const override;

private:
    double m_diameter;
};

}  // namespace cadcam
