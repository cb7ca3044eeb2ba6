// Revolved profiles and parts of every role for the part tests, and a part that reaches only the abstract slot.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <limits>
#include <vector>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/tools/parts/tqalltoolpartdefinitions.h"
#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"
#include "cadcam/tools/tqcadcamexception.h"
#include "support/tqtest.h"

namespace tqtest {

using SolidPointer = misc::tqAutoPointer<cadcam::tqSolidDefinition<double>>;
using PartPointer = misc::tqAutoPointer<cadcam::tqToolPartDefinition<double>>;

constexpr auto kMetric = measures::tqUnitsFactory::Metric;
constexpr auto kInch = measures::tqUnitsFactory::Inch;

/// Builds a profile from a start point: L to a point, A+ or A- to a point about a centre.
class Profile {
public:
    Profile(double x, double y) : m_at(x, y) {}
    Profile& L(double x, double y) {
        m_profile.Append(Item(new cadcam::tq2dLine<double>(m_at, {x, y})));
        m_at = {x, y};
        return *this;
    }
    Profile& A(double x, double y, double cx, double cy, bool ccw = true) {
        const auto direction = ccw ? cadcam::tqArcDirection::Counterclockwise : cadcam::tqArcDirection::Clockwise;
        m_profile.Append(Item(new cadcam::tq2dArc<double>(m_at, {x, y}, {cx, cy}, direction)));
        m_at = {x, y};
        return *this;
    }
    /// An arc about centre of radius r from startAngle over sweep (degrees); the next item starts at its end.
    Profile& Arc(cadcam::tqPoint2d centre, double r, double startAngle, double sweep) {
        auto arc =
            misc::tqAutoPointer<cadcam::tq2dArc<double>>(new cadcam::tq2dArc<double>(centre, r, startAngle, sweep));
        m_profile.Append(arc);
        m_at = arc->GetEnd();
        return *this;
    }
    const cadcam::tq2dContour<double>& Get() const { return m_profile; }
    /// The profile as a revolved solid.
    SolidPointer Solid(measures::tqUnitsFactory::Units units = kMetric) const {
        return SolidPointer(new cadcam::tqRevolvedSolidDefinition<double>(units, m_profile));
    }

private:
    using Item = misc::tqAutoPointer<cadcam::tq2dGeometry<double>>;
    cadcam::tqPoint2d m_at;
    cadcam::tq2dContour<double> m_profile;
};

/// A part of role Part with solid.
template <class Part>
PartPointer Make(const SolidPointer& solid, measures::tqUnitsFactory::Units units = kMetric) {
    return PartPointer(new Part(units, solid));
}
inline PartPointer Cutting(const SolidPointer& solid) { return Make<cadcam::tqCuttingPartDefinition<double>>(solid); }
inline PartPointer NonCutting(const SolidPointer& solid) {
    return Make<cadcam::tqNonCuttingPartDefinition<double>>(solid);
}

/// A flat end mill head of radius r and height h, and a shank from radius r to rs over height h.
inline SolidPointer Head(double r = 5, double h = 20) { return Profile(0, 0).L(r, 0).L(r, h).Solid(); }
inline SolidPointer Shank(double r = 5, double rs = 6, double h = 30) {
    return Profile(0, 0).L(r, 0).L(rs, 5).L(rs, h).Solid();
}

/// Whether two lists hold the very same parts in the same order.
inline bool SameParts(const std::vector<PartPointer>& a, const std::vector<PartPointer>& b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i].Get() != b[i].Get()) return false;
    }
    return true;
}

/// A part that does not tell its role: it reaches the visitor's abstract slot.
class AbstractOnlyPart : public cadcam::tqToolPartDefinition<double> {
public:
    AbstractOnlyPart() : cadcam::tqToolPartDefinition<double>(kMetric, SolidPointer()) {}
    void AcceptVisitor(cadcam::tqToolPartDefinitionVisitor<double>& visitor) const override {
        visitor.Visit(static_cast<const cadcam::tqToolPartDefinition<double>&>(*this));
    }
};

}  // namespace tqtest
