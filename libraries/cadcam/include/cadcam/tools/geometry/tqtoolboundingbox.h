// tqToolBoundingBox: the box and the height of the selected parts of a tool.
#pragma once

#include "cadcam/geometry/tq3dboundingbox.h"
#include "misc/export.h"

namespace cadcam {

class tqTool;

/// Boxes of the parts of a tool in tool coordinates (tip at the origin, spindle side +Z), selected by a mask.
class TQ_EXPORT tqToolBoundingBox {
public:
    /// Mask bits, combined by bitwise or.
    static constexpr unsigned kCutting = 1;
    static constexpr unsigned kNonCutting = 2;
    static constexpr unsigned kArbor = 4;
    static constexpr unsigned kHolder = 8;

    /// The union of the boxes of the selected parts, each placed in the tool; uninitialised when none has extent.
    static tq3dBoundingBox Of(const tqTool& tool, unsigned mask);
    /// The Z extent of Of(tool, mask), 0 when uninitialised. When the mask selects exactly one part whose
    /// placement does not rotate, the Z extent of that part's own solid, so that it is bit-exact.
    static double HeightOf(const tqTool& tool, unsigned mask);
};

}  // namespace cadcam
