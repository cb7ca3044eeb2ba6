// TinyXmlDepth: the scan must agree with TinyXML's own parser on every text, or a crafted document could slip past
// it; so it is compared with TiXmlDocument::Parse on tricky and on random texts, error flag and depth alike.
#include "persistence/archive/tinyxmldepth.h"

#include <tinyxml.h>

#include <random>
#include <string>
#include <vector>

#include "support/tqtest.h"

using tqWorkRig::detail::kTinyXmlPadding;
using tqWorkRig::detail::ScanTinyXml;
using tqWorkRig::detail::TinyXmlScan;

namespace {

std::string Padded(const std::string& text) { return text + std::string(kTinyXmlPadding + 1, '\0'); }

std::size_t DepthOf(const TiXmlNode* node) {
    std::size_t deepest = 0;
    for (const TiXmlNode* child = node->FirstChild(); child != nullptr; child = child->NextSibling())
        deepest = std::max(deepest, DepthOf(child));
    return deepest + (node->ToElement() != nullptr ? 1 : 0);
}

/// Compares the scan with TinyXML, whose failed parse keeps every element it entered: its depth is the recursion's.
void ExpectAgreement(const std::string& text) {
    const std::string buffer = Padded(text);
    TiXmlDocument document;
    document.Parse(buffer.c_str(), nullptr, TIXML_DEFAULT_ENCODING);
    const TinyXmlScan scan = ScanTinyXml(buffer.c_str(), 1000);
    EXPECT_FALSE(scan.deeper);
    EXPECT_EQ(scan.error, document.Error()) << "text: " << text;
    EXPECT_EQ(scan.depth, DepthOf(&document)) << "text: " << text;
}

/// Runs body with TinyXML's white-space setting condensed and not, restoring it after.
template <typename Body>
void WithEitherWhiteSpace(Body body) {
    const bool old = TiXmlBase::IsWhiteSpaceCondensed();
    for (const bool condense : {true, false}) {
        TiXmlBase::SetCondenseWhiteSpace(condense);
        body();
    }
    TiXmlBase::SetCondenseWhiteSpace(old);
}

}  // namespace

TEST(TinyXmlDepth, CountsNestedElementsAndStopsPastTheLimit) {
    std::string text;
    for (int i = 0; i < 300; ++i) text = "<n>" + text + "</n>";
    TinyXmlScan scan = ScanTinyXml(Padded(text).c_str(), 300);
    EXPECT_FALSE(scan.deeper);
    EXPECT_FALSE(scan.error);
    EXPECT_EQ(scan.depth, 300u);
    scan = ScanTinyXml(Padded(text).c_str(), 299);
    EXPECT_TRUE(scan.deeper);
    EXPECT_EQ(scan.depth, 300u);
    // Self-closed siblings do not nest.
    std::string flat = "<r>";
    for (int i = 0; i < 5000; ++i) flat += "<n a='1'/>";
    scan = ScanTinyXml(Padded(flat + "</r>").c_str(), 2);
    EXPECT_FALSE(scan.deeper);
    EXPECT_EQ(scan.depth, 2u);
}

TEST(TinyXmlDepth, AgreesWithTinyXmlOnTrickyTexts) {
    const std::vector<std::string> tricky = {
        "", " ", "<a/>", "<a><b><c/></b></a>", "<a><b></a></b>", "<a></ab>", "<a></a >", "<a x='1' x='2'/>",
        "<a x=1 y=2/>", "<a x=1\"/>", "<a x/>",
        // The declaration's attribute parser stops a quoted value at its quote, its skipper at a blank or '>'.
        "<?xml version='1.0' x=\"<a><a>\"?><a><b/></a>", "<?xml x=\"a><a><a>\"?><r/>",
        "<?xml version=", "<?xml encoding='UTF-8'?><a>\xC3<b/></a>", "<?xml encoding='ISO-8859-1'?><a>\xC3<b/></a>",
        "<?xml encoding='utf8xyz'?><a>\xF0<b/><c/></a>",
        // A UTF-8 lead byte takes the following bytes along, '<' included, once the encoding is UTF-8.
        "\xEF\xBB\xBF<a>\xE6<b><c></c></b></a>", "\xEF\xBB\xBF<a x='\xC3'><b/>'/></a>", "\xEF\xBB\xBF<a>\xF0",
        "\xEF\xBB\xBF<a>\xEF\xBB\xBF<b/></a>",
        // Entities: a numeric one reads up to the next ';' anywhere.
        "<a>&#x41;<b/></a>", "<a>&#x4<b/>1;</a>", "<a>&#12<b/>;</a>", "<a>&#x1x2;<b/></a>", "<a>&amp;&bogus;<b/></a>",
        "<a x='&#x;'/>", "<a><!-- <b><b> --><c/></a>", "<a><!-- unterminated <b>", "<a><![CDATA[<b><b>]]><c/></a>",
        "<a><![CDATA[<b>", "<a><!DOCTYPE <b><c/></a>", "<a><?pi <b>?><c/></a>", "<a>< b/></a>", "<a><_b/><:c/></a>",
        "<a>text<b>more</b>tail</a>", "<a>\r\n  <b> \t </b>\n</a>", "<a/><b/><c><d/></c>", "<a/>trailing", "<a>", "<a",
        "<", "<!-- only a comment -->", "<a\xff/>", "<a><\xff\xfe/></a>"};
    WithEitherWhiteSpace([&] {
        for (const std::string& text : tricky) ExpectAgreement(text);
    });
}

TEST(TinyXmlDepth, AgreesWithTinyXmlOnRandomTexts) {
    const std::vector<std::string> tokens = {
        "<a>", "</a>", "<b x='1'>", "</b>", "<c/>", "<d y=\"2\" z=3>", "</d>", "<!--", "-->", "<![CDATA[", "]]>",
        // Declarations and their encodings, entities.
        "<?xml version='1.0' encoding='", "UTF-8", "ISO-8859-1", "'?>", "<?xml", "?>", "<!DOCTYPE", "&#x41;", "&#x",
        "&#1", ";", "&amp;", "&",
        // Quotes, blanks, and bytes of broken UTF-8.
        "\"", "'", "=", " ", "\n", "\r", "\t", "\xEF\xBB\xBF", "\xEF\xBF\xBE", "\xC3", "\xE6", "\xF0", "\xFF", "<", ">",
        "/", "x", "a", "_", ":", "-", "</", "/>", "<a", "<b", "text"};
    std::mt19937 random(7);
    WithEitherWhiteSpace([&] {
        for (int round = 0; round < 20000 && !HasFailure(); ++round) {
            std::string text;
            for (int i = 1 + static_cast<int>(random() % 40); i > 0; --i) text += tokens[random() % tokens.size()];
            ExpectAgreement(text);
        }
    });
}
