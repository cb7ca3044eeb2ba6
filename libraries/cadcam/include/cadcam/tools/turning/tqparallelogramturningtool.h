// tqParallelogramTurningTool: a parallelogram turning insert.
#pragma once

#include "cadcam/tools/tqtypedextrudedtool.h"

namespace cadcam {

/// A parallelogram turning insert.
class TQ_EXPORT tqParallelogramTurningTool : public tqTypedExtrudedTool {
public:
    tqParallelogramTurningTool(const tqParallelogramTurningTool&) = default;
    tqParallelogramTurningTool& operator=(const tqParallelogramTurningTool&) = default;
    ~tqParallelogramTurningTool() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqParallelogramTurningTool& other) const;
    bool operator!=(const tqParallelogramTurningTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
