// One solid of every kind, a solid that reaches only the abstract slot, and the check every extractor shares.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "cadcam/tools/solids/tqallsoliddefinitions.h"
#include "cadcam/tools/solids/tqsoliddefinitiontypefinder.h"
#include "cadcam/tools/tqcadcamexception.h"
#include "libraries/cadcam/tools/parts/partsamples.h"

namespace tqtest {

template <class T>
using SolidOf = misc::tqAutoPointer<cadcam::tqSolidDefinition<T>>;

/// An end-mill-like profile with a corner arc.
template <class T>
cadcam::tq2dContour<T> CornerProfile() {
    return BasicProfile<T>(0, 0).L(3, 0).A(4, 1, 3, 1).L(4, 10).Get();
}

/// One metric solid of every kind, in the order of tqSolidDefinitionType.
template <class T>
std::vector<SolidOf<T>> OneOfEachKind() {
    using namespace cadcam;
    using Turning = tqTurningSolidDefinition<T>;
    misc::tqAutoPointer<tqTMesh<T>> mesh(new tqTMesh<T>());
    mesh->AddTriangle({0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1});
    const tq2dContour<T> square = BasicProfile<T>(0, 0).L(10, 0).L(10, 10).L(0, 10).L(0, 0).Get();
    return {
        SolidOf<T>(new tqWireSolidDefinition<T>(kMetric, T(0.2), T(50), false)),
        SolidOf<T>(
            new tqContourTurningSolidDefinition<T>(kMetric, T(40), Turning::H_RIGHT, Turning::SK_RECTANGULAR, square)),
        SolidOf<T>(new Turning(kMetric, T(125), Turning::H_RIGHT, Turning::SK_RECTANGULAR, Turning::IN_TRIANGLE,
                               Turning::GENERIC_TYPE_A, 25, 25, 32, 32, 0, 0, 0, 0, 0)),
        SolidOf<T>(new tqMeshSolidDefinition<T>(kMetric, mesh)),
        SolidOf<T>(new tqExtrudedSolidDefinition<T>(kMetric, {0, 0, 5}, T(1), {0, 0, 1}, {square})),
        SolidOf<T>(new tqRevolvedSolidDefinition<T>(kMetric, CornerProfile<T>())),
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

/// In double and float, Extractor yields the solid of kind `kind` itself and refuses each other kind with `number`
/// and `text`, and the abstract slot with 2177.
template <template <class> class Extractor, template <class> class Solid, class T = double>
void ExpectExtractsOnly(cadcam::tqSolidDefinitionType kind, int number, const char16_t* text) {
    const auto solids = OneOfEachKind<T>();
    for (std::size_t k = 0; k < solids.size(); ++k) {
        SCOPED_TRACE("kind " + std::to_string(k));
        const cadcam::tqSolidDefinition<T>& solid = *solids[k];
        if (static_cast<int>(k) == kind) {
            EXPECT_EQ(&Extractor<T>::Extract(solid), static_cast<const Solid<T>*>(&solid));
            EXPECT_EQ(&Extractor<T>(solid).GetSolid(), static_cast<const Solid<T>*>(&solid));
        } else {
            EXPECT_THROW_CODE(Extractor<T>::Extract(solid), cadcam::tqcadcamException, number, text);
        }
    }
    EXPECT_THROW_CODE(Extractor<T>::Extract(AbstractOnlySolid<T>()), cadcam::tqcadcamException, 2177,
                      u"Couldn't handle solid definition");
    if constexpr (std::is_same<T, double>::value) ExpectExtractsOnly<Extractor, Solid, float>(kind, number, text);
}

}  // namespace tqtest
