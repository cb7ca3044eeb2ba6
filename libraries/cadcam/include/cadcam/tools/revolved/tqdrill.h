// tqDrill: a twist drill.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A twist drill.
class TQ_EXPORT tqDrill : public tqTypedRevolvedTool {
public:
    tqDrill(const tqDrill&) = default;
    tqDrill& operator=(const tqDrill&) = default;
    ~tqDrill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqDrill& other) const;
    bool operator!=(const tqDrill& other) const { return !(*this == other); }
};

}  // namespace cadcam
