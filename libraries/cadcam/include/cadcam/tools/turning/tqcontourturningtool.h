// tqContourTurningTool: a turning insert given by the closed contour of its turning solid.
#pragma once

#include "cadcam/tools/tqtypedextrudedtool.h"

namespace cadcam {

/// A turning insert given by the closed contour of its turning solid.
class TQ_EXPORT tqContourTurningTool : public tqTypedExtrudedTool {
public:
    tqContourTurningTool(const tqContourTurningTool&) = default;
    tqContourTurningTool& operator=(const tqContourTurningTool&) = default;
    ~tqContourTurningTool() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqContourTurningTool& other) const;
    bool operator!=(const tqContourTurningTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
