// tqSquareTurningTool: a square turning insert.
#pragma once

#include "cadcam/tools/tqtypedextrudedtool.h"

namespace cadcam {

/// A square turning insert.
class TQ_EXPORT tqSquareTurningTool : public tqTypedExtrudedTool {
public:
    tqSquareTurningTool(const tqSquareTurningTool&) = default;
    tqSquareTurningTool& operator=(const tqSquareTurningTool&) = default;
    ~tqSquareTurningTool() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqSquareTurningTool& other) const;
    bool operator!=(const tqSquareTurningTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
