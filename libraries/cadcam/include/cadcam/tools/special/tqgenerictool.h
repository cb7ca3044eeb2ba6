// tqGenericTool: a tool given by positioned parts: holder, arbor, non-cutting and cutting groups.
#pragma once

#include "cadcam/tools/tqtool.h"

namespace cadcam {

/// A tool given by positioned parts: holder, arbor, non-cutting and cutting groups.
class TQ_EXPORT tqGenericTool : public tqTool {
public:
    tqGenericTool(const tqGenericTool&) = default;
    tqGenericTool& operator=(const tqGenericTool&) = default;
    ~tqGenericTool() override;

    void AcceptBranchVisitor(tqToolBranchVisitor& visitor) const override;
    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqGenericTool& other) const;
    bool operator!=(const tqGenericTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
