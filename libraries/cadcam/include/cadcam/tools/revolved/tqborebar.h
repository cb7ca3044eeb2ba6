// tqBoreBar: a boring bar.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A boring bar.
class TQ_EXPORT tqBoreBar : public tqTypedRevolvedTool {
public:
    tqBoreBar(const tqBoreBar&) = default;
    tqBoreBar& operator=(const tqBoreBar&) = default;
    ~tqBoreBar() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqBoreBar& other) const;
    bool operator!=(const tqBoreBar& other) const { return !(*this == other); }
};

}  // namespace cadcam
