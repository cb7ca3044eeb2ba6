// tqSpotDrill: a spot drill.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A spot drill.
class TQ_EXPORT tqSpotDrill : public tqTypedRevolvedTool {
public:
    tqSpotDrill(const tqSpotDrill&) = default;
    tqSpotDrill& operator=(const tqSpotDrill&) = default;
    ~tqSpotDrill() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqSpotDrill& other) const;
    bool operator!=(const tqSpotDrill& other) const { return !(*this == other); }
};

}  // namespace cadcam
