// tqGenericRevolvedTool: a revolved tool given by an ordered list of tool parts.
#pragma once

#include "cadcam/tools/tqrevolvedtool.h"

namespace cadcam {

/// A revolved tool given by an ordered list of tool parts.
class TQ_EXPORT tqGenericRevolvedTool : public tqRevolvedTool {
public:
    tqGenericRevolvedTool(const tqGenericRevolvedTool&) = default;
    tqGenericRevolvedTool& operator=(const tqGenericRevolvedTool&) = default;
    ~tqGenericRevolvedTool() override;

    /// Twice the largest X of the parts.
    double GetDiameter() const override;
    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqGenericRevolvedTool& other) const;
    bool operator!=(const tqGenericRevolvedTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
