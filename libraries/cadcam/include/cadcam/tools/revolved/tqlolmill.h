// tqLolMill: a lollipop mill, a ball on a neck.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A lollipop mill, a ball on a neck.
class TQ_EXPORT tqLolMill : public tqTypedRevolvedTool {
public:
    tqLolMill(const tqLolMill&) = default;
    tqLolMill& operator=(const tqLolMill&) = default;
    ~tqLolMill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqLolMill& other) const;
    bool operator!=(const tqLolMill& other) const { return !(*this == other); }
};

}  // namespace cadcam
