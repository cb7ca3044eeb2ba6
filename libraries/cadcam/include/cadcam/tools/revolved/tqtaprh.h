// tqTapRH: a right-handed tap.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A right-handed tap.
class TQ_EXPORT tqTapRH : public tqTypedRevolvedTool {
public:
    tqTapRH(const tqTapRH&) = default;
    tqTapRH& operator=(const tqTapRH&) = default;
    ~tqTapRH() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqTapRH& other) const;
    bool operator!=(const tqTapRH& other) const { return !(*this == other); }
};

}  // namespace cadcam
