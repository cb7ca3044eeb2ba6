// tqBarrelTaperMill: a barrel mill with a flat tip and a tapered neck.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A barrel mill with a flat tip and a tapered neck.
class TQ_EXPORT tqBarrelTaperMill : public tqTypedRevolvedTool {
public:
    tqBarrelTaperMill(const tqBarrelTaperMill&) = default;
    tqBarrelTaperMill& operator=(const tqBarrelTaperMill&) = default;
    ~tqBarrelTaperMill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqBarrelTaperMill& other) const;
    bool operator!=(const tqBarrelTaperMill& other) const { return !(*this == other); }
};

}  // namespace cadcam
