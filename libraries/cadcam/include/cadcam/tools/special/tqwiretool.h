// tqWireTool: an erosion wire.
#pragma once

#include "cadcam/tools/tqtool.h"

namespace cadcam {

/// An erosion wire.
class TQ_EXPORT tqWireTool : public tqTool {
public:
    tqWireTool(const tqWireTool&) = default;
    tqWireTool& operator=(const tqWireTool&) = default;
    ~tqWireTool() override;

    void AcceptBranchVisitor(tqToolBranchVisitor& visitor) const override;
    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqWireTool& other) const;
    bool operator!=(const tqWireTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
