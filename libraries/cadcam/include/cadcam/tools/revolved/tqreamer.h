// tqReamer: a reamer with an entry chamfer.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A reamer with an entry chamfer.
class TQ_EXPORT tqReamer : public tqTypedRevolvedTool {
public:
    tqReamer(const tqReamer&) = default;
    tqReamer& operator=(const tqReamer&) = default;
    ~tqReamer() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqReamer& other) const;
    bool operator!=(const tqReamer& other) const { return !(*this == other); }
};

}  // namespace cadcam
