// tqBarrelLensMill: a lens-shaped barrel mill.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A lens-shaped barrel mill.
class TQ_EXPORT tqBarrelLensMill : public tqTypedRevolvedTool {
public:
    tqBarrelLensMill(const tqBarrelLensMill&) = default;
    tqBarrelLensMill& operator=(const tqBarrelLensMill&) = default;
    ~tqBarrelLensMill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqBarrelLensMill& other) const;
    bool operator!=(const tqBarrelLensMill& other) const { return !(*this == other); }
};

}  // namespace cadcam
