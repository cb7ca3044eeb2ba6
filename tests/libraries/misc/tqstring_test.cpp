// tqstring: construction from every text kind, ordering by code unit, and the UTF-8 conversions.
#include "misc/tqstring.h"

#include "support/tqtest.h"

using misc::tqstring;

TEST(TqString, ConstructsFromNarrowWideAndUtf16Alike) {
    const tqstring a(
        "Gr\xC3\xBC\xC3\x9F"
        "e \xF0\x9F\x94\xA7");
    const tqstring b(u"Grüße 🔧");
    const tqstring c(L"Grüße 🔧");
    EXPECT_EQ(a, b);
    EXPECT_EQ(b, c);
    EXPECT_EQ(b.size(), 8u);  // the tool emoji is a surrogate pair
    EXPECT_TRUE(a.narrow().empty());
    EXPECT_EQ(misc::to_utf8(b),
              "Gr\xC3\xBC\xC3\x9F"
              "e \xF0\x9F\x94\xA7");
    EXPECT_EQ(misc::to_wstring(b), L"Grüße 🔧");
}

TEST(TqString, NullEmptyAndInvalidNarrowSourcesNeverFail) {
    EXPECT_TRUE(tqstring(static_cast<const char*>(nullptr)).empty());
    EXPECT_TRUE(tqstring(static_cast<const char16_t*>(nullptr)).empty());
    EXPECT_TRUE(tqstring("").empty());
    EXPECT_EQ(tqstring("a\xFF"
                       "b"),
              tqstring(u"a\uFFFDb"));
}

TEST(TqString, OrdersByUnsignedCodeUnitsWithPrefixFirst) {
    EXPECT_LT(tqstring(u"ab"), tqstring(u"abc"));
    EXPECT_LT(tqstring(u"Z"), tqstring(u"a"));
    const char16_t high[] = {0xD800, 0xDC00, 0};
    EXPECT_LT(tqstring(u"\u00FF"), tqstring(high));  // 0xFF < 0xD800 as unsigned units
    EXPECT_LT(tqstring(u"\u7FFF"), tqstring(u"\uFFFF"));
    EXPECT_FALSE(tqstring(u"abc") < tqstring(u"abc"));
    EXPECT_NE(tqstring(u"Abc"), tqstring(u"abc"));
}

TEST(TqString, ConcatenationCopyAndAssignment) {
    const tqstring mid(u"mid");
    EXPECT_EQ(u"<" + mid + u">", tqstring(u"<mid>"));
    EXPECT_EQ(L"<" + mid + L">", tqstring(u"<mid>"));
    EXPECT_EQ("<" + mid + ">", tqstring(u"<mid>"));
    tqstring a(u"a"), b(a);
    a += tqstring(u"b");
    a += u'c';
    EXPECT_EQ(b, tqstring(u"a"));
    b = a;
    a = tqstring(u"x");
    EXPECT_EQ(b, tqstring(u"abc"));
    EXPECT_EQ(a, tqstring(u"x"));
}

TEST(Utf8, StrictFormRejectsInvalidSequencesAndLoneSurrogatesBecomeReplacements) {
    // Truncated, overlong, a surrogate, above U+10FFFF.
    for (const char* bad : {"\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80"})
        EXPECT_THROW_MSG(misc::from_utf8(std::string(bad)), misc::tqException,
                         "misc::from_utf8: UTF8 -> tqstring conversioned failed (most likely cause: invalid UTF8 "
                         "sequence)");
    EXPECT_EQ(misc::from_utf8(std::string("\xE2\x82\xAC")), tqstring(u"\u20AC"));
    EXPECT_EQ(misc::from_utf8(std::string()), tqstring());
    const char16_t lone[] = {u'x', 0xD800, u'y', 0};
    EXPECT_EQ(misc::to_utf8(tqstring(lone)), "x\xEF\xBF\xBDy");
}
