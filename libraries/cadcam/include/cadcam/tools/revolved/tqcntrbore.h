// tqCntrBore: a counterbore.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A counterbore.
class TQ_EXPORT tqCntrBore : public tqTypedRevolvedTool {
public:
    tqCntrBore(const tqCntrBore&) = default;
    tqCntrBore& operator=(const tqCntrBore&) = default;
    ~tqCntrBore() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqCntrBore& other) const;
    bool operator!=(const tqCntrBore& other) const { return !(*this == other); }
};

}  // namespace cadcam
