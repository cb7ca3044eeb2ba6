// tqRadMill: a corner rounding mill.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A corner rounding mill.
class TQ_EXPORT tqRadMill : public tqTypedRevolvedTool {
public:
    tqRadMill(const tqRadMill&) = default;
    tqRadMill& operator=(const tqRadMill&) = default;
    ~tqRadMill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqRadMill& other) const;
    bool operator!=(const tqRadMill& other) const { return !(*this == other); }
};

}  // namespace cadcam
