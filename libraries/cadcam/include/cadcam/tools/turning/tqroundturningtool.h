// tqRoundTurningTool: a round turning insert.
#pragma once

#include "cadcam/tools/tqtypedextrudedtool.h"

namespace cadcam {

/// A round turning insert.
class TQ_EXPORT tqRoundTurningTool : public tqTypedExtrudedTool {
public:
    tqRoundTurningTool(const tqRoundTurningTool&) = default;
    tqRoundTurningTool& operator=(const tqRoundTurningTool&) = default;
    ~tqRoundTurningTool() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqRoundTurningTool& other) const;
    bool operator!=(const tqRoundTurningTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
