// tqTypedSawingTool: sawing tools given by named parameters.
#pragma once

#include "cadcam/tools/tqsawingtool.h"

namespace cadcam {

/// A saw of a catalogue shape.
class TQ_EXPORT tqTypedSawingTool : public tqSawingTool {
public:
    ~tqTypedSawingTool() override;

    void AcceptVisitor(tqToolVisitor& visitor) const override;

protected:
    using tqSawingTool::tqSawingTool;
    tqTypedSawingTool(const tqTypedSawingTool&) = default;
    tqTypedSawingTool& operator=(const tqTypedSawingTool&) = default;
};

}  // namespace cadcam
