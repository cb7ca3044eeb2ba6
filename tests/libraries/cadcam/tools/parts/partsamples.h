// Profiles and parts of every role for the part tests (profiles and contour checks for the tool and validation
// tests too), and a part that reaches only the abstract slot.
#pragma once

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dcontourproperties.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/tools/parts/tqalltoolpartdefinitions.h"
#include "cadcam/tools/solids/tqextrudedsoliddefinition.h"
#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"
#include "cadcam/tools/tqcadcamexception.h"
#include "support/tqtest.h"

namespace tqtest {

using SolidPointer = misc::tqAutoPointer<cadcam::tqSolidDefinition<double>>;
using PartPointer = misc::tqAutoPointer<cadcam::tqToolPartDefinition<double>>;

constexpr auto kMetric = measures::tqUnitsFactory::Metric;
constexpr auto kInch = measures::tqUnitsFactory::Inch;

/// Builds a profile from a start point: L to a point, A+ or A- to a point about a centre, M to jump (a gap).
template <class T>
class BasicProfile {
public:
    using Item = misc::tqAutoPointer<cadcam::tq2dGeometry<T>>;
    BasicProfile(T x, T y) : m_at(x, y) {}
    BasicProfile& L(T x, T y) { return Add(Item(new cadcam::tq2dLine<T>(m_at, {x, y}))).M(x, y); }
    BasicProfile& A(T x, T y, T cx, T cy, bool ccw = true) {
        const auto direction = ccw ? cadcam::tqArcDirection::Counterclockwise : cadcam::tqArcDirection::Clockwise;
        return Add(Item(new cadcam::tq2dArc<T>(m_at, {x, y}, {cx, cy}, direction))).M(x, y);
    }
    BasicProfile& M(T x, T y) {
        m_at = {x, y};
        return *this;
    }
    BasicProfile& Add(const Item& item) {
        m_profile.Append(item);
        return *this;
    }
    const cadcam::tq2dContour<T>& Get() const { return m_profile; }
    /// The profile as a metric revolved solid.
    misc::tqAutoPointer<cadcam::tqSolidDefinition<T>> Solid() const {
        return misc::tqAutoPointer<cadcam::tqSolidDefinition<T>>(
            new cadcam::tqRevolvedSolidDefinition<T>(kMetric, m_profile));
    }

private:
    cadcam::tqTPoint2d<T> m_at;
    cadcam::tq2dContour<T> m_profile;
};
using Profile = BasicProfile<double>;

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

/// The one contour of a part's solid extruded from the turning plane, after checking the plane (normal (0,−1,0),
/// at planeZ), the extrusion (depth along −Y), and that the contour is closed, simple and counterclockwise.
inline cadcam::tq2dContour<double> TurningPlaneContour(const cadcam::tqToolPartDefinition<double>& part, double planeZ,
                                                       double depth) {
    const auto solid = part.GetSolid().DynamicCast<cadcam::tqExtrudedSolidDefinition<double>>();
    if (solid.IsNull() || solid->GetContours().size() != 1) throw std::logic_error("not a one-contour extrusion");
    EXPECT_EQ(solid->GetConstructionPlane(), cadcam::tqTPoint3d<double>(0, -1, 0));
    EXPECT_EQ(solid->GetPlaneZ(), planeZ);
    EXPECT_EQ(solid->GetExtrusionVector(), cadcam::tqTPoint3d<double>(0, -depth, 0));
    EXPECT_TRUE(cadcam::tqIsClosedContinuousAndSimple(solid->GetContours()[0]));
    EXPECT_GT(cadcam::tq2dContourProperties<double>(solid->GetContours()[0]).GetSignedArea(), 0);
    return solid->GetContours()[0];
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
