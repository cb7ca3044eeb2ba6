// tqPotGrinderTool: a pot grinder, a cylindrical cutting envelope with only the common parameters.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A pot grinder, a cylindrical cutting envelope with only the common parameters.
class TQ_EXPORT tqPotGrinderTool : public tqTypedRevolvedTool {
public:
    tqPotGrinderTool(const tqPotGrinderTool&) = default;
    tqPotGrinderTool& operator=(const tqPotGrinderTool&) = default;
    ~tqPotGrinderTool() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqPotGrinderTool& other) const;
    bool operator!=(const tqPotGrinderTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
