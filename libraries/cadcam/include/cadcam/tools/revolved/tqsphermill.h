// tqSpherMill: a sphere (ball) mill.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A sphere (ball) mill.
class TQ_EXPORT tqSpherMill : public tqTypedRevolvedTool {
public:
    tqSpherMill(const tqSpherMill&) = default;
    tqSpherMill& operator=(const tqSpherMill&) = default;
    ~tqSpherMill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqSpherMill& other) const;
    bool operator!=(const tqSpherMill& other) const { return !(*this == other); }
};

}  // namespace cadcam
