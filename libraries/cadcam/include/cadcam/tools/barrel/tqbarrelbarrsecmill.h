// tqBarrelBarrSecMill: a barrel segment mill on a shaft.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A barrel segment mill on a shaft.
class TQ_EXPORT tqBarrelBarrSecMill : public tqTypedRevolvedTool {
public:
    tqBarrelBarrSecMill(const tqBarrelBarrSecMill&) = default;
    tqBarrelBarrSecMill& operator=(const tqBarrelBarrSecMill&) = default;
    ~tqBarrelBarrSecMill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqBarrelBarrSecMill& other) const;
    bool operator!=(const tqBarrelBarrSecMill& other) const { return !(*this == other); }
};

}  // namespace cadcam
