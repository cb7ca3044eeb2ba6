// tqBarrelMill: a barrel mill with an upper diameter and a corner fillet.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A barrel mill with an upper diameter and a corner fillet.
class TQ_EXPORT tqBarrelMill : public tqTypedRevolvedTool {
public:
    tqBarrelMill(const tqBarrelMill&) = default;
    tqBarrelMill& operator=(const tqBarrelMill&) = default;
    ~tqBarrelMill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqBarrelMill& other) const;
    bool operator!=(const tqBarrelMill& other) const { return !(*this == other); }
};

}  // namespace cadcam
