// tqTypedRevolvedTool: the common parameters, their checks, the extender, the profiles and parts, and the heights.
#include "cadcam/tools/tqtypedrevolvedtool.h"

#include <algorithm>
#include <cmath>

#include "cadcam/tools/parts/tqcuttingpartdefinition.h"
#include "cadcam/tools/parts/tqnoncuttingpartdefinition.h"
#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

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
      // Stands in until BuildProfiles, which every class calls, sets the default one when none was given.
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

void tqTypedRevolvedTool::BuildProfiles(const shape::HeadPath& head, bool baseAtShoulder) {
    using shape::Point;
    const double lf = m_fluteLength;
    const double ls = m_shoulderLength;
    shape::HeadPath cutting = shape::ExtendAndClip(head, lf);
    shape::Drop(cutting);
    const double topRadius = cutting.Last().x;
    // The default extender follows the profile, also after a change of units.
    if (!m_extenderGiven) {
        m_extender = tqShoulderDefinitionExtender(GetUnits(), std::max(m_diameter, 2 * topRadius),
                                                  baseAtShoulder ? ls : lf);
    }
    const double rs = m_extender.GetDiameter() / 2;
    // Heights closer than ε are one: a shank lower than that is none, and a cone that low is a step.
    const double epsilon = shape::Epsilon(std::max({ls, rs, topRadius}));
    const double lb = m_extender.GetLength() - lf <= epsilon ? lf : m_extender.GetLength();

    // The shank: a cone from the top of the flutes to the extender's diameter over [Lf, Lb], then a cylinder.
    shape::HeadPath shank(Point(0, lf));
    if (ls - lf > epsilon) {
        if (lb == lf) {
            shank.LineTo(Point(rs, lf));
        } else {
            shank.LineTo(Point(topRadius, lf));
            if (lb < ls) shank.LineTo(Point(rs, lb));
        }
        shank.LineTo(Point(rs, ls));
    }
    shape::Drop(shank);
    // The part's own coordinates start at y = 0 exactly and end at Ls − Lf.
    shape::HeadPath part(Point(shank.start.x, 0));
    for (const shape::PathItem& item : shank.items) part.LineTo(Point(item.end.x, item.end.y - lf));

    shape::HeadPath tool = cutting;
    if (!shank.items.empty()) {
        tool.LineTo(shank.items.front().end);
        tool.items.insert(tool.items.end(), shank.items.begin() + 1, shank.items.end());
    }
    shape::Drop(tool);

    const measures::tqUnitsFactory::Units units = GetUnits();
    using Solid = tqRevolvedSolidDefinition<double>;
    using SolidPointer = tqToolPartDefinition<double>::SolidPointer;
    // Built aside first, so that a failure leaves the tool as it was.
    CuttingPartPointer cuttingPart(
        new tqCuttingPartDefinition<double>(units, SolidPointer(new Solid(units, shape::ToContour(cutting)))));
    NonCuttingPartPointer nonCuttingPart(
        new tqNonCuttingPartDefinition<double>(units, SolidPointer(new Solid(units, shape::ToContour(part)))));
    tq2dContour<double> shankProfile = shape::ToContour(shank);
    tq2dContour<double> profile = shape::ToContour(tool);
    m_cuttingPart = cuttingPart;
    m_nonCuttingPart = nonCuttingPart;
    m_nonCuttingToolProfile = shankProfile;
    m_profile = profile;
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
    RebuildProfiles();
}

}  // namespace cadcam
