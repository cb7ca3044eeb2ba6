// tqException: chains of earlier failures, equality, clone and rethrow, the failure helper and TQ_ASSERT.
#include "misc/tqexception.h"

#include "support/tqtest.h"

using misc::tqException;

TEST(TqException, EarlierFailuresChainNewestFirst) {
    const tqException first(1, u"first"), second(2, u"second", &first), third(3, u"third", &second),
        fourth(4, u"fourth", &third);
    const auto& chain = fourth.GetEarlierFailures();
    ASSERT_EQ(chain.size(), 3u);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(chain[i].code, 3 - i);
    EXPECT_EQ(chain[0].message, misc::tqstring(u"third"));
    EXPECT_EQ(chain[2].message, misc::tqstring(u"first"));
}

TEST(TqException, EqualityComparesMessageCodeAndWholeChain) {
    const tqException cause(1, u"cause");
    const tqException otherCause(1, u"other cause");
    EXPECT_EQ(tqException(0, u"x", &cause), tqException(0, u"x", &cause));
    EXPECT_NE(tqException(0, u"x", &cause), tqException(0, u"x", &otherCause));
    EXPECT_NE(tqException(0, u"x"), tqException(1, u"x"));
    EXPECT_NE(tqException(0, u"x"), tqException(0, u"y"));
}

TEST(TqException, CloneKeepsTheClassAndRethrowSlicesToTheBase) {
    const misc::tqSTLParserException stl(u"Invalid .stl file format!");
    const auto clone = stl.Clone();
    EXPECT_NE(dynamic_cast<const misc::tqSTLParserException*>(clone.Get()), nullptr);
    EXPECT_EQ(*clone, stl);
    const misc::tqRangeException<double> range(u"range", 2.0, 0.0, 1.0);
    EXPECT_NE(dynamic_cast<const misc::tqRangeException<double>*>(range.Clone().Get()), nullptr);
    try {
        stl.Rethrow();
    } catch (const misc::tqParserException&) {
        ADD_FAILURE() << "Rethrow must throw a plain tqException";
    } catch (const tqException& e) {
        EXPECT_EQ(e, tqException(0, u"Invalid .stl file format!"));
    }
}

TEST(TqException, FailureHelperJoinsTagAndText) {
    EXPECT_THROW_CODE(misc::ThrowFailure(u"tqWorkRig::ConnectorTree::AddConnection",
                                         "WR: First set an initial plug before you can add connections."),
                      tqException, 0,
                      "tqWorkRig::ConnectorTree::AddConnection: WR: First set an initial plug before you can add "
                      "connections.");
    EXPECT_THROW_MSG(misc::ThrowFailure(u"WR: plain"), tqException, "WR: plain");
}

TEST(TqAssert, ThrowsSourceLineAndCondition) {
    const int line = __LINE__ + 1;
    auto fails = [] { TQ_ASSERT(1 + 1 == 3); };
    EXPECT_THROW_MSG(fails(), tqException,
                     std::string(__FILE__) + " (" + std::to_string(line) + "): TQ_ASSERT failed (1 + 1 == 3)");
    misc::tqAutoPointer<int> firstSocketChild;
    EXPECT_THROW_MSG(TQ_ASSERT_AT(firstSocketChild.IsNotNull(), "connectortree.cpp", 77), tqException,
                     "connectortree.cpp (77): TQ_ASSERT failed (firstSocketChild.IsNotNull())");
    EXPECT_NO_THROW(TQ_ASSERT(true));
}
