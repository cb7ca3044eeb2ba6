// tqThreadTapTool: a thread tap given by pitch or threads per inch and its hand.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A thread tap given by pitch or threads per inch and its hand.
class TQ_EXPORT tqThreadTapTool : public tqTypedRevolvedTool {
public:
    tqThreadTapTool(const tqThreadTapTool&) = default;
    tqThreadTapTool& operator=(const tqThreadTapTool&) = default;
    ~tqThreadTapTool() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqThreadTapTool& other) const;
    bool operator!=(const tqThreadTapTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
