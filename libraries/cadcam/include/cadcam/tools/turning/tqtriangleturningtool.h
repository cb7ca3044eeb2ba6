// tqTriangleTurningTool: a triangular turning insert.
#pragma once

#include "cadcam/tools/tqtypedextrudedtool.h"

namespace cadcam {

/// A triangular turning insert.
class TQ_EXPORT tqTriangleTurningTool : public tqTypedExtrudedTool {
public:
    tqTriangleTurningTool(const tqTriangleTurningTool&) = default;
    tqTriangleTurningTool& operator=(const tqTriangleTurningTool&) = default;
    ~tqTriangleTurningTool() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqTriangleTurningTool& other) const;
    bool operator!=(const tqTriangleTurningTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
