// tqSpeedShapeTool: a speed shape tool, carried as an envelope of its sizes.
#pragma once

#include "cadcam/tools/tqtool.h"

namespace cadcam {

/// A speed shape tool, carried as an envelope of its sizes.
class TQ_EXPORT tqSpeedShapeTool : public tqTool {
public:
    tqSpeedShapeTool(const tqSpeedShapeTool&) = default;
    tqSpeedShapeTool& operator=(const tqSpeedShapeTool&) = default;
    ~tqSpeedShapeTool() override;

    void AcceptBranchVisitor(tqToolBranchVisitor& visitor) const override;
    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqSpeedShapeTool& other) const;
    bool operator!=(const tqSpeedShapeTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
