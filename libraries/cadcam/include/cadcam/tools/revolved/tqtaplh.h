// tqTapLH: a left-handed tap.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A left-handed tap.
class TQ_EXPORT tqTapLH : public tqTypedRevolvedTool {
public:
    tqTapLH(const tqTapLH&) = default;
    tqTapLH& operator=(const tqTapLH&) = default;
    ~tqTapLH() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqTapLH& other) const;
    bool operator!=(const tqTapLH& other) const { return !(*this == other); }
};

}  // namespace cadcam
