// tqASTLParser: the keyword spellings, the order of commands, and every message of malformed text.
#include "cadcam/stl/tqastlparser.h"

#include <sstream>
#include <string>
#include <vector>

#include "misc/tqmemoryiostream.h"
#include "support/tqtest.h"

namespace {

/// Logs each command as a short line.
struct Recorder : cadcam::tqASTLParser::Commands {
    std::ostringstream log;
    void Add(char what, double x, double y, double z) { log << what << '(' << x << ',' << y << ',' << z << ");"; }
    void SetNormal(double x, double y, double z) override { Add('n', x, y, z); }
    void SetFirstPoint(double x, double y, double z) override { Add('a', x, y, z); }
    void SetSecondPoint(double x, double y, double z) override { Add('b', x, y, z); }
    void SetThirdPoint(double x, double y, double z) override { Add('c', x, y, z); }
    void EndFacet() override { log << "end;"; }
};

std::string Parse(std::string text) {
    misc::tqMemoryIOStream input(&text[0], text.size(), text.size());
    cadcam::tqASTLParser parser(input);
    Recorder recorder;
    parser.Parse(recorder);
    EXPECT_EQ(parser.GetBytesRead(), text.size());
    return recorder.log.str();
}

const std::string kFacet =
    "facet normal 0 0 1\nouter loop\nvertex 1 2 3\nvertex 4 5 6\nvertex 7 8 9\nendloop\nendfacet\n";
const std::string kFacetLog = "n(0,0,1);a(1,2,3);b(4,5,6);c(7,8,9);end;";
const char* const kInvalid = "Invalid .stl file format!";
const char* const kUnknown = "Unknown keyword found while parsing .stl file";
const char* const kEnd = "Unexpected end of input stream occurred when reading .stl file";

/// One facet in a solid with its line `line` (0 = facet line ... 6 = endfacet line) replaced.
std::string WithLine(std::size_t line, const std::string& replacement) {
    std::string lines[] = {"facet normal 0 0 1", "outer loop", "vertex 1 2 3", "vertex 4 5 6",
                           "vertex 7 8 9",       "endloop",    "endfacet"};
    lines[line] = replacement;
    std::string text = "solid s\n";
    for (const std::string& l : lines) text += l + "\n";
    return text + "endsolid s\n";
}

}  // namespace

TEST(TqASTLParser, SpellingsCaseSpacingAndSolidsReadAlike) {
    EXPECT_EQ(Parse("solid\nendsolid"), "");
    for (const std::string& text :
         {"  \n\tsolid\n\n" + kFacet + "\n  endsolid", "\xEF\xBB\xBFsolid\n" + kFacet + "endsolid\n",
          std::string("SOLID X\r\nFACET NORMAL 0 0 1\r\nOUTER LOOP\r\nVERTEX 1 2 3\r\nVERTEX 4 5 6\r\n"
                      "VERTEX 7 8 9\r\nEND LOOP\r\nEND FACET\r\nENDSOLID X\r\n"),
          std::string("solid\rfacet normal 0 0 1\routerloop\rvertex 1 2 3\rvertex 4 5 6\rvertex 7 8 9\r"
                      "end loop\rendfacet\rendsolid"),
          std::string("solid\n  Facet  Normal\t+0 0 1e0 \n OuterLoop\nvertex 1.0 +2 0.3e1\nvertex 4 5 6\n"
                      "vertex 7 8 9\nEndLoop\nEnd\tFacet\nendsolid")})
        EXPECT_EQ(Parse(text), kFacetLog) << text;
    for (const std::string& text : {"solid name with words\n" + kFacet + kFacet + "endsolid name\n",
                                    "solid a\n" + kFacet + "endsolid a\nsolid b\n" + kFacet + "endsolid b\n"})
        EXPECT_EQ(Parse(text), kFacetLog + kFacetLog) << text;
}

TEST(TqASTLParser, EachMalformedLineHasItsMessage) {
    const struct {
        const char* message;
        std::size_t line;
        std::vector<const char*> texts;
    } cases[] = {
        {"Keyword 'facet' with wrong parameters found",
         0,
         {"facet", "facet normal", "facet normal 1 2", "facet normal 1 2 x", "facet 1 2 3", "facet normal 1 2 3 4",
          "facet normals 1 2 3", "facet normal 1 2 1e999"}},
        {"Not detected 'outer loop' keyword",
         1,
         {"vertex 1 2 3", "outer", "outer space", "outerloop now", "loop", "inner loop"}},
        {"Keyword 'vertex' with wrong parameters found",
         3,
         {"vertex", "vertex 1 2", "vertex 1 2 3 4", "vertex 1,0 2 3", "vertex 1 2 --3", "vertex 1 2 +"}},
        // A known keyword out of place breaks the structure; an unknown word is reported as such.
        {kInvalid, 4, {"endloop"}},
        {kInvalid, 5, {"vertex 1 1 1", "end facet"}},
        {kUnknown, 4, {"vortex 7 8 9"}},
        {kUnknown, 5, {"end"}},
        {kUnknown, 6, {"end of it"}},
        {"Found keyword 'endloop' or 'end loop' followed by other string",
         5,
         {"endloop x", "end loop x", "endloop endfacet"}},
        {"Found keyword 'endfacet' or 'end facet' followed by other string", 6, {"endfacet x", "end facet 1"}},
    };
    for (const auto& c : cases)
        for (const char* text : c.texts) {
            SCOPED_TRACE(text);
            EXPECT_THROW_MSG(Parse(WithLine(c.line, text)), misc::tqSTLParserException, c.message);
        }
}

TEST(TqASTLParser, UnknownWordsWrongStartsAndEarlyEnds) {
    const std::string whole = "solid\n" + kFacet;
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{"solid\nhello\n", "solid\n" + std::string(100000, 'w') + "\n"}, kUnknown},
        {{"solid\nvertex 1 2 3\n", "solid a\n" + kFacet + "endsolid a\ngarbage\n", "", "   \n", "solidity\n",
          "facet normal 0 0 1\n", "\xEF\xBB"},
         kInvalid},
        {{"solid x\n", "solid x\n" + kFacet, whole.substr(0, 8), whole.substr(0, 20), whole.substr(0, 25),
          whole.substr(0, 40), whole.substr(0, whole.size() - 1)},
         kEnd},
    };
    for (const auto& c : cases)
        for (const std::string& text : c.first) {
            SCOPED_TRACE(text.substr(0, 40));
            EXPECT_THROW_MSG(Parse(text), misc::tqSTLParserException, c.second);
        }
}
