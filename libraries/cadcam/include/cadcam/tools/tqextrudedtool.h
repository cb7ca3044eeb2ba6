// tqExtrudedTool: the family of tools that are an extruded solid (turning inserts).
#pragma once

#include "cadcam/tools/tqtool.h"

namespace cadcam {

/// A tool whose cutting part is an extruded solid.
class TQ_EXPORT tqExtrudedTool : public tqTool {
public:
    ~tqExtrudedTool() override;

    void AcceptBranchVisitor(tqToolBranchVisitor& visitor) const override;
    /// Reaches the visitor's overload for tools of an abstract family; every concrete class overrides it.
    void AcceptVisitor(tqToolVisitor& visitor) const override;

protected:
    using tqTool::tqTool;
    tqExtrudedTool(const tqExtrudedTool&) = default;
    tqExtrudedTool& operator=(const tqExtrudedTool&) = default;
};

}  // namespace cadcam
