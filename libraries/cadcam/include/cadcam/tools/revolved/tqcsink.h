// tqCSink: a countersink.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A countersink.
class TQ_EXPORT tqCSink : public tqTypedRevolvedTool {
public:
    tqCSink(const tqCSink&) = default;
    tqCSink& operator=(const tqCSink&) = default;
    ~tqCSink() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqCSink& other) const;
    bool operator!=(const tqCSink& other) const { return !(*this == other); }
};

}  // namespace cadcam
