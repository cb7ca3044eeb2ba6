// tqToolPartsContainer and its visitors: only cutting and non-cutting parts, in order; sorting, deep copies,
// counts and the composition of a list.
#include "cadcam/tools/parts/tqtoolpartscontainer.h"

#include <functional>

#include "partsamples.h"

namespace {

using namespace cadcam;
using Container = tqToolPartsContainer<double>;
using PartList = Container::PartList;
using tqtest::PartPointer;

const char16_t kUnknownPart[] = u"Unknown tool part definition.";

PartPointer Holder() { return tqtest::Make<tqHolderDefinition<double>>(tqtest::Head(30, 60)); }
PartPointer Arbor() { return tqtest::Make<tqArborDefinition<double>>(tqtest::Head(15, 40)); }

TEST(tqToolPartsContainer, HoldsCuttingAndNonCuttingPartsSharedInOrder) {
    EXPECT_TRUE(Container().IsEmpty());
    const PartList parts = {tqtest::NonCutting(tqtest::Shank()), tqtest::Cutting(tqtest::Head()),
                            tqtest::Cutting(tqtest::Head(4))};
    const Container container(parts);
    ASSERT_EQ(container.GetCount(), 3u);
    for (std::size_t i = 0; i < parts.size(); ++i) EXPECT_EQ(container.GetPart(i).Get(), parts[i].Get());
    EXPECT_TRUE(tqtest::SameParts(Container(container).GetParts(), parts));
    EXPECT_THROW_MSG(container.GetPart(3), misc::tqIdxRangeException<std::uint64_t>, u"Tool part index out of range");
}

TEST(tqToolPartsContainer, RefusesHoldersArborsAndNullEntries) {
    const PartPointer cutting = tqtest::Cutting(tqtest::Head());
    EXPECT_THROW_CODE(Container({cutting, Holder()}), tqcadcamException, 2184, kUnknownPart);
    EXPECT_THROW_CODE(Container({Arbor(), cutting}), tqcadcamException, 2184, kUnknownPart);
    EXPECT_THROW_CODE(Container({cutting, PartPointer(new tqtest::AbstractOnlyPart())}), tqcadcamException, 2184,
                      kUnknownPart);
    EXPECT_THROW_MSG(Container({cutting, PartPointer()}), misc::tqException, u"Accessing TQ_NULL pointer");
}

TEST(tqToolPartsContainer, EqualityIsPartByPartInOrderAndACloneCopiesEveryPart) {
    const PartPointer cutting = tqtest::Cutting(tqtest::Head()), nonCutting = tqtest::NonCutting(tqtest::Shank());
    const Container container({cutting, nonCutting});
    EXPECT_EQ(container, Container({tqtest::Cutting(tqtest::Head()), tqtest::NonCutting(tqtest::Shank())}));
    EXPECT_NE(container, Container({nonCutting, cutting}));
    EXPECT_NE(container, Container({cutting}));
    EXPECT_NE(container, Container({cutting, tqtest::Cutting(tqtest::Shank())}));
    EXPECT_NE(container, Container({cutting, tqtest::NonCutting(tqtest::Shank(5, 7))}));
    const Container clone = container.Clone();
    ASSERT_EQ(clone, container);
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_NE(clone.GetPart(i).Get(), container.GetPart(i).Get());
        EXPECT_NE(clone.GetPart(i)->GetSolid().Get(), container.GetPart(i)->GetSolid().Get());
    }
    EXPECT_TRUE(clone.GetPart(1).DynamicCast<tqNonCuttingPartDefinition<double>>().IsNotNull());
}

TEST(tqToolPartsCloner, AHolderClonesToAHolderWithACloneOfItsSolid) {
    const PartPointer holder = Holder();
    const PartList clones = Container::tqToolPartsCloner::Clone({holder});
    ASSERT_EQ(clones.size(), 1u);
    ASSERT_TRUE(clones[0].DynamicCast<tqHolderDefinition<double>>().IsNotNull());
    EXPECT_NE(clones[0]->GetSolid().Get(), holder->GetSolid().Get());
    EXPECT_TRUE(clones[0]->IsEqual(*holder));

    Container::tqToolPartsCloner cloner;
    EXPECT_TRUE(cloner.GetClone().IsNull());
    holder->AcceptVisitor(cloner);
    EXPECT_TRUE(cloner.GetClone()->IsEqual(*holder));
}

TEST(tqToolPartsExtractor, SortsEveryRoleKeepingOrderAndSharing) {
    const PartList parts = {Holder(), tqtest::Cutting(tqtest::Head()), tqtest::NonCutting(tqtest::Shank()), Arbor(),
                            tqtest::Cutting(tqtest::Head(4))};
    Container::tqToolPartsExtractor extractor(parts);
    EXPECT_TRUE(tqtest::SameParts(extractor.GetCuttingParts(), PartList{parts[1], parts[4]}));
    EXPECT_TRUE(tqtest::SameParts(extractor.GetNonCuttingParts(), PartList{parts[2]}));
    EXPECT_TRUE(tqtest::SameParts(extractor.GetArbors(), PartList{parts[3]}));
    EXPECT_TRUE(tqtest::SameParts(extractor.GetHolders(), PartList{parts[0]}));

    extractor.Add(parts[2]);
    EXPECT_TRUE(tqtest::SameParts(extractor.GetNonCuttingParts(), PartList{parts[2], parts[2]}));
    // Visited directly, with no pointer at hand, the part is kept as a clone.
    parts[0]->AcceptVisitor(extractor);
    ASSERT_EQ(extractor.GetHolders().size(), 2u);
    EXPECT_NE(extractor.GetHolders()[1].Get(), parts[0].Get());
    EXPECT_TRUE(extractor.GetHolders()[1]->IsEqual(*parts[0]));
}

TEST(tqBasicToolPartsAnalyser, CountsEveryRole) {
    const PartPointer c = tqtest::Cutting(tqtest::Head()), n = tqtest::NonCutting(tqtest::Shank());
    const Container::tqBasicToolPartsAnalyser analyser({Holder(), c, n, c, Arbor(), Arbor(), Arbor()});
    const std::vector<std::size_t> counts = {analyser.GetCuttingPartCount(), analyser.GetNonCuttingPartCount(),
                                             analyser.GetArborCount(), analyser.GetHolderCount(), analyser.GetCount()};
    EXPECT_EQ(counts, (std::vector<std::size_t>{2, 1, 3, 1, 7}));
}

TEST(tqBasicToolPartsIdentifier, TellsHowAListIsComposed) {
    using Identifier = Container::tqBasicToolPartsIdentifier;
    const PartPointer c = tqtest::Cutting(tqtest::Head()), n = tqtest::NonCutting(tqtest::Shank());
    const struct {
        PartList parts;
        Identifier::Composition expected;
    } cases[] = {
        {{}, Identifier::PC_EMPTY},
        {{c}, Identifier::PC_CUTTING_ONLY},
        {{c, c}, Identifier::PC_CUTTING_ONLY},
        {{n, n}, Identifier::PC_NON_CUTTING_ONLY},
        {{c, n}, Identifier::PC_CUTTING_THEN_NON_CUTTING},
        {{c, c, n, n}, Identifier::PC_CUTTING_THEN_NON_CUTTING},
        {{n, c}, Identifier::PC_MIXED},
        {{c, n, c}, Identifier::PC_MIXED},
        {{c, n, Arbor()}, Identifier::PC_WITH_MOUNTING},
        {{Holder()}, Identifier::PC_WITH_MOUNTING},
    };
    for (std::size_t i = 0; i < sizeof(cases) / sizeof(cases[0]); ++i) {
        EXPECT_EQ(Identifier(cases[i].parts).GetComposition(), cases[i].expected) << "case " << i;
    }
}

TEST(tqToolPartsContainer, EveryVisitorRefusesThePartOfNoRole) {
    const PartList parts = {tqtest::Cutting(tqtest::Head()), PartPointer(new tqtest::AbstractOnlyPart())};
    const std::function<void()> uses[] = {
        [&] { Container::tqToolPartsValidator::Validate(parts); }, [&] { Container::tqToolPartsExtractor{parts}; },
        [&] { Container::tqToolPartsCloner::Clone(parts); },       [&] { Container::tqBasicToolPartsAnalyser{parts}; },
        [&] { Container::tqBasicToolPartsIdentifier{parts}; },
    };
    for (const auto& use : uses) EXPECT_THROW_CODE(use(), tqcadcamException, 2184, kUnknownPart);
}

}  // namespace
