// tqPentagonalTurningTool: a pentagonal turning insert.
#pragma once

#include "cadcam/tools/tqtypedextrudedtool.h"

namespace cadcam {

/// A pentagonal turning insert.
class TQ_EXPORT tqPentagonalTurningTool : public tqTypedExtrudedTool {
public:
    tqPentagonalTurningTool(const tqPentagonalTurningTool&) = default;
    tqPentagonalTurningTool& operator=(const tqPentagonalTurningTool&) = default;
    ~tqPentagonalTurningTool() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqPentagonalTurningTool& other) const;
    bool operator!=(const tqPentagonalTurningTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
