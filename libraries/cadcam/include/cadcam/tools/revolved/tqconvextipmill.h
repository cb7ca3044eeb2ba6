// tqConvexTipMill: a mill with a convex tip, a flat and a corner fillet.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A mill with a convex tip, a flat and a corner fillet.
class TQ_EXPORT tqConvexTipMill : public tqTypedRevolvedTool {
public:
    tqConvexTipMill(const tqConvexTipMill&) = default;
    tqConvexTipMill& operator=(const tqConvexTipMill&) = default;
    ~tqConvexTipMill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqConvexTipMill& other) const;
    bool operator!=(const tqConvexTipMill& other) const { return !(*this == other); }
};

}  // namespace cadcam
