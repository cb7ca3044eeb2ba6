// tqDoveMill: a dovetail mill narrowing upward.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A dovetail mill narrowing upward.
class TQ_EXPORT tqDoveMill : public tqTypedRevolvedTool {
public:
    tqDoveMill(const tqDoveMill&) = default;
    tqDoveMill& operator=(const tqDoveMill&) = default;
    ~tqDoveMill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqDoveMill& other) const;
    bool operator!=(const tqDoveMill& other) const { return !(*this == other); }
};

}  // namespace cadcam
