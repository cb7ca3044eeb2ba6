// tqOpticDiamondTool: a diamond tool for optics, with its nose radius and angles.
#pragma once

#include "cadcam/tools/tqtool.h"

namespace cadcam {

/// A diamond tool for optics, with its nose radius and angles.
class TQ_EXPORT tqOpticDiamondTool : public tqTool {
public:
    tqOpticDiamondTool(const tqOpticDiamondTool&) = default;
    tqOpticDiamondTool& operator=(const tqOpticDiamondTool&) = default;
    ~tqOpticDiamondTool() override;

    void AcceptBranchVisitor(tqToolBranchVisitor& visitor) const override;
    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqOpticDiamondTool& other) const;
    bool operator!=(const tqOpticDiamondTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
