// tqSlotMill: a slot mill (a disc with rounded corners).
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A slot mill (a disc with rounded corners).
class TQ_EXPORT tqSlotMill : public tqTypedRevolvedTool {
public:
    tqSlotMill(const tqSlotMill&) = default;
    tqSlotMill& operator=(const tqSlotMill&) = default;
    ~tqSlotMill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqSlotMill& other) const;
    bool operator!=(const tqSlotMill& other) const { return !(*this == other); }
};

}  // namespace cadcam
