// tqGrooveTurningTool: a grooving insert of one of five types.
#pragma once

#include "cadcam/tools/tqtypedextrudedtool.h"

namespace cadcam {

/// A grooving insert of one of five types.
class TQ_EXPORT tqGrooveTurningTool : public tqTypedExtrudedTool {
public:
    tqGrooveTurningTool(const tqGrooveTurningTool&) = default;
    tqGrooveTurningTool& operator=(const tqGrooveTurningTool&) = default;
    ~tqGrooveTurningTool() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqGrooveTurningTool& other) const;
    bool operator!=(const tqGrooveTurningTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
