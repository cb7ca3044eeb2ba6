// tqTypedRevolvedTool: the common parameters, their checks, the extender and the part heights.
#include "cadcam/tools/tqtypedrevolvedtool.h"

#include <algorithm>
#include <cmath>

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

using Extender = tqTypedRevolvedTool::tqShoulderDefinitionExtender;

Extender::tqShoulderDefinitionExtender(measures::tqUnitsFactory::Units units, double diameter, double length)
    : measures::tqMeasurable(units), m_diameter(diameter), m_length(length) {
    if (!(diameter > 0)) throw tqcadcamException(2185);
    if (!(length > 0)) throw tqcadcamException(2186);
    if (!(std::isfinite(diameter) && std::isfinite(length))) throw tqcadcamException(3473);
}

Extender::~tqShoulderDefinitionExtender() = default;

bool Extender::operator==(const tqShoulderDefinitionExtender& other) const {
    return GetUnits() == other.GetUnits() && m_diameter == other.m_diameter && m_length == other.m_length;
}

void Extender::Scale(measures::tqUnitsFactory::Units, const double& factor) {
    m_diameter *= factor;
    m_length *= factor;
}

tqTypedRevolvedTool::tqTypedRevolvedTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                         const HolderPointer& holder, double diameter, double fluteLength,
                                         double shoulderLength, const tqShoulderDefinitionExtender* extender,
                                         const CommonRules& rules)
    : tqRevolvedTool(units, arbor, holder),
      m_diameter(diameter),
      m_fluteLength(fluteLength),
      m_shoulderLength(shoulderLength),
      // Stands in until SetDefaultExtender, which every class calls when none was given.
      m_extender(extender != nullptr ? *extender : tqShoulderDefinitionExtender(units, 1, 1)),
      m_extenderGiven(extender != nullptr) {
    if (!(diameter > 0 && std::isfinite(diameter))) throw tqcadcamException(2105);
    if (!(fluteLength > 0 && std::isfinite(fluteLength))) throw tqcadcamException(rules.fluteLengthNumber);
    if (rules.shoulderAboveFlutes) {
        if (!(shoulderLength > fluteLength && std::isfinite(shoulderLength))) throw tqcadcamException(2311);
    } else if (!(shoulderLength >= fluteLength && std::isfinite(shoulderLength))) {
        throw tqcadcamException(2107);
    }
    const double radius = diameter / 2;
    switch (rules.cornerRule) {
        case CommonRules::kNone: break;
        case CommonRules::kBelowRadius:
            if (!(radius > rules.cornerRadius)) throw tqcadcamException(2336);
            break;
        case CommonRules::kNonNegativeBelowRadius:
            if (!(rules.cornerRadius >= 0 && radius > rules.cornerRadius)) throw tqcadcamException(2336);
            break;
    }
    if (extender != nullptr) {
        const double base = extender->GetLength();
        if (!(fluteLength <= base && base <= shoulderLength)) throw tqcadcamException(2187);
    }
}

tqTypedRevolvedTool::~tqTypedRevolvedTool() = default;

void tqTypedRevolvedTool::SetDefaultExtender(double topRadius, bool baseAtShoulder) {
    if (m_extenderGiven) return;
    m_extender = tqShoulderDefinitionExtender(GetUnits(), std::max(m_diameter, 2 * topRadius),
                                              baseAtShoulder ? m_shoulderLength : m_fluteLength);
}

std::optional<double> tqTypedRevolvedTool::PartHeightOf(PartHeightSelector selector) const {
    const bool cutting = (selector & kCuttingPart) != 0;
    const bool nonCutting = (selector & kNonCuttingPart) != 0;
    if (cutting && nonCutting) return m_shoulderLength;
    if (cutting) return m_fluteLength;
    if (nonCutting && m_shoulderLength > m_fluteLength) return m_shoulderLength - m_fluteLength;
    return std::nullopt;
}

void tqTypedRevolvedTool::AcceptVisitor(tqToolVisitor& visitor) const {
    visitor.Visit(static_cast<const tqTool&>(*this));
}

bool tqTypedRevolvedTool::BaseEquals(const tqTypedRevolvedTool& other) const {
    return tqTool::BaseEquals(other) && m_diameter == other.m_diameter && m_fluteLength == other.m_fluteLength &&
           m_shoulderLength == other.m_shoulderLength && m_extender == other.m_extender;
}

void tqTypedRevolvedTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_diameter *= factor;
    m_fluteLength *= factor;
    m_shoulderLength *= factor;
    measures::tqMeasurable::ScaleNested(m_extender, units, factor);
    tqTool::Scale(units, factor);
}

}  // namespace cadcam
