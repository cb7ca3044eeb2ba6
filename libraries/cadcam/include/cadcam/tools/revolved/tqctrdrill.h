// tqCtrDrill: a centre drill with pilot and shoulder.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A centre drill with pilot and shoulder.
class TQ_EXPORT tqCtrDrill : public tqTypedRevolvedTool {
public:
    tqCtrDrill(const tqCtrDrill&) = default;
    tqCtrDrill& operator=(const tqCtrDrill&) = default;
    ~tqCtrDrill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqCtrDrill& other) const;
    bool operator!=(const tqCtrDrill& other) const { return !(*this == other); }
};

}  // namespace cadcam
