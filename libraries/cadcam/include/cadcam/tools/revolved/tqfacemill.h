// tqFaceMill: a face mill.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A face mill.
class TQ_EXPORT tqFaceMill : public tqTypedRevolvedTool {
public:
    tqFaceMill(const tqFaceMill&) = default;
    tqFaceMill& operator=(const tqFaceMill&) = default;
    ~tqFaceMill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqFaceMill& other) const;
    bool operator!=(const tqFaceMill& other) const { return !(*this == other); }
};

}  // namespace cadcam
