// tqBarrelAdvancedMill: a barrel mill given by its flute height, axial and radial position definitions.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A barrel mill given by its flute height, axial and radial position definitions.
class TQ_EXPORT tqBarrelAdvancedMill : public tqTypedRevolvedTool {
public:
    tqBarrelAdvancedMill(const tqBarrelAdvancedMill&) = default;
    tqBarrelAdvancedMill& operator=(const tqBarrelAdvancedMill&) = default;
    ~tqBarrelAdvancedMill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqBarrelAdvancedMill& other) const;
    bool operator!=(const tqBarrelAdvancedMill& other) const { return !(*this == other); }
};

}  // namespace cadcam
