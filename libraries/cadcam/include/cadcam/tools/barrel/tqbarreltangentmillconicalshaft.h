// tqBarrelTangentMillConicalShaft: a tangent barrel mill with a conical neck.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A tangent barrel mill with a conical neck.
class TQ_EXPORT tqBarrelTangentMillConicalShaft : public tqTypedRevolvedTool {
public:
    tqBarrelTangentMillConicalShaft(const tqBarrelTangentMillConicalShaft&) = default;
    tqBarrelTangentMillConicalShaft& operator=(const tqBarrelTangentMillConicalShaft&) = default;
    ~tqBarrelTangentMillConicalShaft() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqBarrelTangentMillConicalShaft& other) const;
    bool operator!=(const tqBarrelTangentMillConicalShaft& other) const { return !(*this == other); }
};

}  // namespace cadcam
