// One solid of every kind, a solid that reaches only the abstract slot, and the check every extractor shares.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/tools/solids/tqallsoliddefinitions.h"
#include "cadcam/tools/solids/tqsoliddefinitiontypefinder.h"
#include "cadcam/tools/tqcadcamexception.h"
#include "support/tqtest.h"

namespace tqtest {

template <class T>
using SolidPointer = misc::tqAutoPointer<cadcam::tqSolidDefinition<T>>;

constexpr auto kMetric = measures::tqUnitsFactory::Metric;
constexpr auto kInch = measures::tqUnitsFactory::Inch;

/// A chain of lines through the points, closed back to the first one when closed is set.
template <class T>
cadcam::tq2dContour<T> Polyline(const std::vector<cadcam::tqTPoint2d<T>>& points, bool closed = false) {
    cadcam::tq2dContour<T> contour;
    for (std::size_t i = 1; i < points.size(); ++i) {
        contour.Append(misc::tqAutoPointer<cadcam::tq2dGeometry<T>>(new cadcam::tq2dLine<T>(points[i - 1], points[i])));
    }
    if (closed) {
        contour.Append(
            misc::tqAutoPointer<cadcam::tq2dGeometry<T>>(new cadcam::tq2dLine<T>(points.back(), points.front())));
    }
    return contour;
}

/// An end-mill-like profile with a corner arc: S(0,0) L(3,0) A+(4,1; 3,1) L(4,10).
template <class T>
cadcam::tq2dContour<T> CornerProfile() {
    cadcam::tq2dContour<T> profile = Polyline<T>({{0, 0}, {3, 0}});
    profile.Append(misc::tqAutoPointer<cadcam::tq2dGeometry<T>>(
        new cadcam::tq2dArc<T>({3, 0}, {4, 1}, {3, 1}, cadcam::tqArcDirection::Counterclockwise)));
    profile.Append(misc::tqAutoPointer<cadcam::tq2dGeometry<T>>(new cadcam::tq2dLine<T>({4, 1}, {4, 10})));
    return profile;
}

/// One metric solid of every kind, in the order of tqSolidDefinitionType.
template <class T>
std::vector<SolidPointer<T>> OneOfEachKind() {
    using namespace cadcam;
    using Turning = tqTurningSolidDefinition<T>;
    misc::tqAutoPointer<tqTMesh<T>> mesh(new tqTMesh<T>());
    mesh->AddTriangle({0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1});
    const tq2dContour<T> square = Polyline<T>({{0, 0}, {10, 0}, {10, 10}, {0, 10}}, true);
    return {
        SolidPointer<T>(new tqWireSolidDefinition<T>(kMetric, T(0.2), T(50), false)),
        SolidPointer<T>(
            new tqContourTurningSolidDefinition<T>(kMetric, T(40), Turning::H_RIGHT, Turning::SK_RECTANGULAR, square)),
        SolidPointer<T>(new Turning(kMetric, T(125), Turning::H_RIGHT, Turning::SK_RECTANGULAR, Turning::IN_TRIANGLE,
                                    Turning::GENERIC_TYPE_A, 25, 25, 32, 32, 0, 0, 0, 0, 0)),
        SolidPointer<T>(new tqMeshSolidDefinition<T>(kMetric, mesh)),
        SolidPointer<T>(new tqExtrudedSolidDefinition<T>(kMetric, {0, 0, 5}, T(1), {0, 0, 1}, {square})),
        SolidPointer<T>(new tqRevolvedSolidDefinition<T>(kMetric, CornerProfile<T>())),
    };
}

/// A solid that does not tell its kind: it reaches the visitor's abstract slot.
template <class T>
class AbstractOnlySolid : public cadcam::tqSolidDefinition<T> {
public:
    AbstractOnlySolid() : cadcam::tqSolidDefinition<T>(kMetric) {}
    void AcceptVisitor(cadcam::tqSolidDefinitionVisitorGetter<T>& visitor) const override {
        visitor.Visit(static_cast<const cadcam::tqSolidDefinition<T>&>(*this));
    }

protected:
    void Scale(measures::tqUnitsFactory::Units, const double&) override {}
};

/// Extractor yields the solid of kind `kind` itself and refuses each other kind with `number` and `text`, and
/// the abstract slot with 2177.
template <class Extractor, class Solid, class T>
void ExpectExtractsOnly(cadcam::tqSolidDefinitionType kind, int number, const char16_t* text) {
    const auto solids = OneOfEachKind<T>();
    for (std::size_t k = 0; k < solids.size(); ++k) {
        SCOPED_TRACE("kind " + std::to_string(k));
        const cadcam::tqSolidDefinition<T>& solid = *solids[k];
        if (static_cast<int>(k) == kind) {
            EXPECT_EQ(&Extractor::Extract(solid), static_cast<const Solid*>(&solid));
            EXPECT_EQ(&Extractor(solid).GetSolid(), static_cast<const Solid*>(&solid));
        } else {
            EXPECT_THROW_CODE(Extractor::Extract(solid), cadcam::tqcadcamException, number, text);
        }
    }
    EXPECT_THROW_CODE(Extractor::Extract(AbstractOnlySolid<T>()), cadcam::tqcadcamException, 2177,
                      u"Couldn't handle solid definition");
}

}  // namespace tqtest
