// tqHexagonalTurningTool: a hexagonal turning insert.
#pragma once

#include "cadcam/tools/tqtypedextrudedtool.h"

namespace cadcam {

/// A hexagonal turning insert.
class TQ_EXPORT tqHexagonalTurningTool : public tqTypedExtrudedTool {
public:
    tqHexagonalTurningTool(const tqHexagonalTurningTool&) = default;
    tqHexagonalTurningTool& operator=(const tqHexagonalTurningTool&) = default;
    ~tqHexagonalTurningTool() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqHexagonalTurningTool& other) const;
    bool operator!=(const tqHexagonalTurningTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
