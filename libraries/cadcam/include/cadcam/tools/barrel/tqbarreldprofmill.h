// tqBarrelDProfMill: a barrel mill with two profile radii.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A barrel mill with two profile radii.
class TQ_EXPORT tqBarrelDProfMill : public tqTypedRevolvedTool {
public:
    tqBarrelDProfMill(const tqBarrelDProfMill&) = default;
    tqBarrelDProfMill& operator=(const tqBarrelDProfMill&) = default;
    ~tqBarrelDProfMill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqBarrelDProfMill& other) const;
    bool operator!=(const tqBarrelDProfMill& other) const { return !(*this == other); }
};

}  // namespace cadcam
