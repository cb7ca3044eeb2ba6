// tqTaperMill: a taper mill widening upward.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A taper mill widening upward.
class TQ_EXPORT tqTaperMill : public tqTypedRevolvedTool {
public:
    tqTaperMill(const tqTaperMill&) = default;
    tqTaperMill& operator=(const tqTaperMill&) = default;
    ~tqTaperMill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqTaperMill& other) const;
    bool operator!=(const tqTaperMill& other) const { return !(*this == other); }
};

}  // namespace cadcam
