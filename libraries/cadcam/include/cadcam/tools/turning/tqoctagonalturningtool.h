// tqOctagonalTurningTool: an octagonal turning insert.
#pragma once

#include "cadcam/tools/tqtypedextrudedtool.h"

namespace cadcam {

/// An octagonal turning insert.
class TQ_EXPORT tqOctagonalTurningTool : public tqTypedExtrudedTool {
public:
    tqOctagonalTurningTool(const tqOctagonalTurningTool&) = default;
    tqOctagonalTurningTool& operator=(const tqOctagonalTurningTool&) = default;
    ~tqOctagonalTurningTool() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqOctagonalTurningTool& other) const;
    bool operator!=(const tqOctagonalTurningTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
