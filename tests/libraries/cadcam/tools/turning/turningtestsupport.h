// Holders and arbors for the turning tests, the check that the family's rules run before a class's own, and units.
#pragma once

#include <functional>
#include <limits>
#include <vector>

#include "cadcam/tools/parts/tqdefaulttoolparts.h"
#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"
#include "cadcam/tools/solids/tqturningsoliddefinition.h"
#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtool.h"
#include "libraries/cadcam/tools/parts/partsamples.h"

namespace turningtest {

using tqtest::kInch;
using tqtest::kMetric;
using tqtest::Profile;
using tqtest::SolidPointer;
using HolderPointer = cadcam::tqTool::HolderPointer;
using ArborPointer = cadcam::tqTool::ArborPointer;
using Turning = cadcam::tqTurningSolidDefinition<double>;
using E = cadcam::tqcadcamException;

/// The default metric turning holder for the insert number, and the turning arbor (an empty revolved solid).
inline HolderPointer Holder(int insert = 0) { return cadcam::tqDefaultToolParts::TurningHolder(kMetric, insert); }
inline ArborPointer Arbor() { return cadcam::tqDefaultToolParts::TurningArbor(kMetric); }

/// 2337 for a missing or non-turning holder, then 2338 for a thickness not > 0, before any rule of the class;
/// make builds an insert whose own parameters are all broken.
inline void ExpectFamilyRulesFirst(const std::function<void(const HolderPointer& holder, double thickness)>& make) {
    // A milling holder: a revolved solid, which no insert takes.
    const HolderPointer revolved(
        new cadcam::tqHolderDefinition<double>(kMetric, Profile(0, 0).L(25, 0).L(25, 70).Solid()));
    const char* holderText = "Invalid holder definition.";
    EXPECT_THROW_CODE(make(HolderPointer(), 0), E, 2337, holderText);
    EXPECT_THROW_CODE(make(HolderPointer(new cadcam::tqHolderDefinition<double>(kMetric, {})), 1), E, 2337, holderText);
    EXPECT_THROW_CODE(make(revolved, 1), E, 2337, holderText);
    const char* thicknessText = "Thickness must be greater than 0.";
    EXPECT_THROW_CODE(make(Holder(), 0), E, 2338, thicknessText);
    EXPECT_THROW_CODE(make(Holder(), std::numeric_limits<double>::quiet_NaN()), E, 2338, thicknessText);
}

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

}  // namespace turningtest
