// tqGenericExtrudedTool: a tool given by one solid as its cutting part.
#pragma once

#include "cadcam/tools/tqextrudedtool.h"

namespace cadcam {

/// A tool given by one solid as its cutting part.
class TQ_EXPORT tqGenericExtrudedTool : public tqExtrudedTool {
public:
    tqGenericExtrudedTool(const tqGenericExtrudedTool&) = default;
    tqGenericExtrudedTool& operator=(const tqGenericExtrudedTool&) = default;
    ~tqGenericExtrudedTool() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqGenericExtrudedTool& other) const;
    bool operator!=(const tqGenericExtrudedTool& other) const { return !(*this == other); }
};

}  // namespace cadcam
