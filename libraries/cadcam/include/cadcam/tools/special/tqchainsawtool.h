// tqChainSawTool: a chain saw blade, straight or simple.
#pragma once

#include "cadcam/tools/tqtypedsawingtool.h"

namespace cadcam {

/// A chain saw blade, straight or simple.
class TQ_EXPORT tqChainSawTool : public tqTypedSawingTool {
public:
    tqChainSawTool(const tqChainSawTool&) = default;
    tqChainSawTool& operator=(const tqChainSawTool&) = default;
    ~tqChainSawTool() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqChainSawTool& other) const;
    bool operator!=(const tqChainSawTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
