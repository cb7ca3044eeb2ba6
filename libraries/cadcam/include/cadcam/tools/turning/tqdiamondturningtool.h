// tqDiamondTurningTool: a rhombic turning insert.
#pragma once

#include "cadcam/tools/tqtypedextrudedtool.h"

namespace cadcam {

/// A rhombic turning insert.
class TQ_EXPORT tqDiamondTurningTool : public tqTypedExtrudedTool {
public:
    tqDiamondTurningTool(const tqDiamondTurningTool&) = default;
    tqDiamondTurningTool& operator=(const tqDiamondTurningTool&) = default;
    ~tqDiamondTurningTool() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqDiamondTurningTool& other) const;
    bool operator!=(const tqDiamondTurningTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
