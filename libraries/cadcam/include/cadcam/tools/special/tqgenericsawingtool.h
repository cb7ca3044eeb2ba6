// tqGenericSawingTool: a saw given by its blade thickness alone.
#pragma once

#include "cadcam/tools/tqsawingtool.h"

namespace cadcam {

/// A saw given by its blade thickness alone.
class TQ_EXPORT tqGenericSawingTool : public tqSawingTool {
public:
    tqGenericSawingTool(const tqGenericSawingTool&) = default;
    tqGenericSawingTool& operator=(const tqGenericSawingTool&) = default;
    ~tqGenericSawingTool() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqGenericSawingTool& other) const;
    bool operator!=(const tqGenericSawingTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
