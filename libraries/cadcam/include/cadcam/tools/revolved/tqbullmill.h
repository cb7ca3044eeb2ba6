// tqBullMill: a bull nose mill with a torus corner.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A bull nose mill with a torus corner.
class TQ_EXPORT tqBullMill : public tqTypedRevolvedTool {
public:
    tqBullMill(const tqBullMill&) = default;
    tqBullMill& operator=(const tqBullMill&) = default;
    ~tqBullMill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqBullMill& other) const;
    bool operator!=(const tqBullMill& other) const { return !(*this == other); }
};

}  // namespace cadcam
