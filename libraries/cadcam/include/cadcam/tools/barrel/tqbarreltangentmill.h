// tqBarrelTangentMill: a barrel mill tangent to its tip ball.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A barrel mill tangent to its tip ball.
class TQ_EXPORT tqBarrelTangentMill : public tqTypedRevolvedTool {
public:
    tqBarrelTangentMill(const tqBarrelTangentMill&) = default;
    tqBarrelTangentMill& operator=(const tqBarrelTangentMill&) = default;
    ~tqBarrelTangentMill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqBarrelTangentMill& other) const;
    bool operator!=(const tqBarrelTangentMill& other) const { return !(*this == other); }
};

}  // namespace cadcam
