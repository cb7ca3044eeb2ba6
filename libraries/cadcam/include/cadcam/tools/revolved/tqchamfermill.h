// tqChamferMill: a chamfer mill.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A chamfer mill.
class TQ_EXPORT tqChamferMill : public tqTypedRevolvedTool {
public:
    tqChamferMill(const tqChamferMill&) = default;
    tqChamferMill& operator=(const tqChamferMill&) = default;
    ~tqChamferMill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqChamferMill& other) const;
    bool operator!=(const tqChamferMill& other) const { return !(*this == other); }
};

}  // namespace cadcam
