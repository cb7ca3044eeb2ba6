// tqGenericSawingTool: a saw given by its blade thickness alone.
#pragma once

#include "cadcam/tools/tqsawingtool.h"

namespace cadcam {

/// A saw given by its blade thickness alone; it has no cutting geometry of its own.
class TQ_EXPORT tqGenericSawingTool : public tqSawingTool {
public:
    /// Throws tqcadcamException 2302 unless bladeThickness > 0.
    tqGenericSawingTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                        double bladeThickness);
    tqGenericSawingTool(const tqGenericSawingTool&) = default;
    tqGenericSawingTool& operator=(const tqGenericSawingTool&) = default;
    ~tqGenericSawingTool() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqGenericSawingTool& other) const;
    bool operator!=(const tqGenericSawingTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
