// Holders and arbors for the tests of the other tool families, and a units check.
#pragma once

#include <vector>

#include "cadcam/tools/parts/tqdefaulttoolparts.h"
#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtool.h"
#include "libraries/cadcam/tools/parts/partsamples.h"

namespace othertest {

using tqtest::kInch;
using tqtest::kMetric;
using E = cadcam::tqcadcamException;
using tqtest::Profile;
using tqtest::SolidPointer;

/// The default metric milling holder and arbor.
inline cadcam::tqTool::HolderPointer Holder() { return cadcam::tqDefaultToolParts::MillingHolder(kMetric); }
inline cadcam::tqTool::ArborPointer Arbor() { return cadcam::tqDefaultToolParts::MillingArbor(kMetric); }

/// A copy moved to inch reads its lengths divided by 25.4 and its angles unchanged: a units round trip alone would
/// not notice a length left alone or an angle scaled.
template <class Tool>
void ExpectScaledByUnits(const Tool& tool, const std::vector<double (Tool::*)() const>& lengths,
                         const std::vector<double (Tool::*)() const>& angles = {}) {
    Tool inch(tool);
    inch.SetUnits(kInch);
    for (const auto get : lengths) EXPECT_DOUBLE_EQ((inch.*get)(), (tool.*get)() / 25.4);
    for (const auto get : angles) EXPECT_EQ((inch.*get)(), (tool.*get)());
}

}  // namespace othertest
