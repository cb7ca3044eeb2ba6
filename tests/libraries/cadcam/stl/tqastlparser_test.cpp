// tqASTLParser: the keyword spellings, the order of commands, and every message of malformed text.
#include "cadcam/stl/tqastlparser.h"

#include <string>

#include "misc/tqmemoryiostream.h"
#include "support/tqtest.h"

namespace {

/// Logs each command as a short line.
class Recorder : public cadcam::tqASTLParser::Commands {
public:
    std::string log;
    void SetNormal(double x, double y, double z) override { Add("n", x, y, z); }
    void SetFirstPoint(double x, double y, double z) override { Add("a", x, y, z); }
    void SetSecondPoint(double x, double y, double z) override { Add("b", x, y, z); }
    void SetThirdPoint(double x, double y, double z) override { Add("c", x, y, z); }
    void EndFacet() override { log += "end;"; }

private:
    void Add(const char* what, double x, double y, double z) {
        log += std::string(what) + "(" + Num(x) + "," + Num(y) + "," + Num(z) + ");";
    }
    static std::string Num(double v) {
        std::string s = std::to_string(v);
        s.erase(s.find_last_not_of('0') + 1);
        if (s.back() == '.') s.pop_back();
        return s;
    }
};

std::string Parse(std::string text) {
    misc::tqMemoryIOStream input(&text[0], text.size(), text.size());
    cadcam::tqASTLParser parser(input);
    Recorder recorder;
    parser.Parse(recorder);
    EXPECT_EQ(parser.GetBytesRead(), text.size());
    return recorder.log;
}

const std::string kFacet =
    "facet normal 0 0 1\nouter loop\nvertex 1 2 3\nvertex 4 5 6\nvertex 7 8 9\nendloop\nendfacet\n";
const std::string kFacetLog = "n(0,0,1);a(1,2,3);b(4,5,6);c(7,8,9);end;";

/// One facet with its line `line` (0 = facet line ... 6 = endfacet line) replaced.
std::string WithLine(int line, const std::string& replacement) {
    const char* lines[] = {"facet normal 0 0 1", "outer loop", "vertex 1 2 3", "vertex 4 5 6",
                           "vertex 7 8 9",       "endloop",    "endfacet"};
    std::string text = "solid s\n";
    for (int i = 0; i < 7; ++i) text += (i == line ? replacement : std::string(lines[i])) + "\n";
    return text + "endsolid s\n";
}

}  // namespace

TEST(TqASTLParser, CommandsFollowTheFileFacetByFacet) {
    EXPECT_EQ(Parse("solid name with words\n" + kFacet + kFacet + "endsolid name\n"), kFacetLog + kFacetLog);
    EXPECT_EQ(Parse("solid\nendsolid"), "");
    EXPECT_EQ(Parse("  \n\tsolid\n\n" + kFacet + "\n  endsolid"), kFacetLog);
}

TEST(TqASTLParser, KeywordSpellingsAndCaseReadAlike) {
    EXPECT_EQ(Parse("SOLID X\r\nFACET NORMAL 0 0 1\r\nOUTER LOOP\r\nVERTEX 1 2 3\r\nVERTEX 4 5 6\r\nVERTEX 7 8 9\r\n"
                    "END LOOP\r\nEND FACET\r\nENDSOLID X\r\n"),
              kFacetLog);
    EXPECT_EQ(Parse("solid\rfacet normal 0 0 1\routerloop\rvertex 1 2 3\rvertex 4 5 6\rvertex 7 8 9\rend loop\r"
                    "endfacet\rendsolid"),
              kFacetLog);
    EXPECT_EQ(Parse("solid\n  Facet  Normal\t+0 0 1e0 \n OuterLoop\nvertex 1.0 +2 0.3e1\nvertex 4 5 6\nvertex 7 8 9\n"
                    "EndLoop\nEnd\tFacet\nendsolid"),
              kFacetLog);
    EXPECT_EQ(Parse("\xEF\xBB\xBFsolid\n" + kFacet + "endsolid\n"), kFacetLog);
}

TEST(TqASTLParser, SeveralSolidsMayShareAFile) {
    EXPECT_EQ(Parse("solid a\n" + kFacet + "endsolid a\nsolid b\n" + kFacet + "endsolid b\n"), kFacetLog + kFacetLog);
    EXPECT_THROW_MSG(Parse("solid a\n" + kFacet + "endsolid a\ngarbage\n"), misc::tqSTLParserException,
                     "Invalid .stl file format!");
}

TEST(TqASTLParser, FacetAndOuterLoopMessages) {
    const char* facet = "Keyword 'facet' with wrong parameters found";
    for (const char* line : {"facet", "facet normal", "facet normal 1 2", "facet normal 1 2 x", "facet 1 2 3",
                             "facet normal 1 2 3 4", "facet normals 1 2 3", "facet normal 1 2 1e999"}) {
        SCOPED_TRACE(line);
        EXPECT_THROW_MSG(Parse(WithLine(0, line)), misc::tqSTLParserException, facet);
    }
    const char* outer = "Not detected 'outer loop' keyword";
    for (const char* line : {"vertex 1 2 3", "outer", "outer space", "outerloop now", "loop", "inner loop"}) {
        SCOPED_TRACE(line);
        EXPECT_THROW_MSG(Parse(WithLine(1, line)), misc::tqSTLParserException, outer);
    }
}

TEST(TqASTLParser, VertexMessages) {
    const char* vertex = "Keyword 'vertex' with wrong parameters found";
    for (const char* line :
         {"vertex", "vertex 1 2", "vertex 1 2 3 4", "vertex 1,0 2 3", "vertex 1 2 --3", "vertex 1 2 +"}) {
        SCOPED_TRACE(line);
        EXPECT_THROW_MSG(Parse(WithLine(3, line)), misc::tqSTLParserException, vertex);
    }
    // A known keyword where a vertex belongs breaks the structure; an unknown word is reported as such.
    EXPECT_THROW_MSG(Parse(WithLine(4, "endloop")), misc::tqSTLParserException, "Invalid .stl file format!");
    EXPECT_THROW_MSG(Parse(WithLine(4, "vortex 7 8 9")), misc::tqSTLParserException,
                     "Unknown keyword found while parsing .stl file");
    EXPECT_THROW_MSG(Parse(WithLine(5, "vertex 1 1 1")), misc::tqSTLParserException, "Invalid .stl file format!");
}

TEST(TqASTLParser, EndKeywordsFollowedByText) {
    for (const char* line : {"endloop x", "end loop x", "endloop endfacet"}) {
        SCOPED_TRACE(line);
        EXPECT_THROW_MSG(Parse(WithLine(5, line)), misc::tqSTLParserException,
                         "Found keyword 'endloop' or 'end loop' followed by other string");
    }
    for (const char* line : {"endfacet x", "end facet 1"}) {
        SCOPED_TRACE(line);
        EXPECT_THROW_MSG(Parse(WithLine(6, line)), misc::tqSTLParserException,
                         "Found keyword 'endfacet' or 'end facet' followed by other string");
    }
    EXPECT_THROW_MSG(Parse(WithLine(5, "end facet")), misc::tqSTLParserException, "Invalid .stl file format!");
    EXPECT_THROW_MSG(Parse(WithLine(5, "end")), misc::tqSTLParserException,
                     "Unknown keyword found while parsing .stl file");
    EXPECT_THROW_MSG(Parse(WithLine(6, "end of it")), misc::tqSTLParserException,
                     "Unknown keyword found while parsing .stl file");
}

TEST(TqASTLParser, UnknownWordsWrongStartsAndEarlyEnds) {
    const char* unknown = "Unknown keyword found while parsing .stl file";
    EXPECT_THROW_MSG(Parse("solid\nhello\n"), misc::tqSTLParserException, unknown);
    EXPECT_THROW_MSG(Parse("solid\n" + std::string(100000, 'w') + "\n"), misc::tqSTLParserException, unknown);
    EXPECT_THROW_MSG(Parse("solid\nvertex 1 2 3\n"), misc::tqSTLParserException, "Invalid .stl file format!");
    for (const char* text : {"", "   \n", "solidity\n", "facet normal 0 0 1\n", "\xEF\xBB"}) {
        SCOPED_TRACE(text);
        EXPECT_THROW_MSG(Parse(text), misc::tqSTLParserException, "Invalid .stl file format!");
    }

    const char* end = "Unexpected end of input stream occurred when reading .stl file";
    EXPECT_THROW_MSG(Parse("solid x\n"), misc::tqSTLParserException, end);
    EXPECT_THROW_MSG(Parse("solid x\n" + kFacet), misc::tqSTLParserException, end);
    const std::string whole = "solid\n" + kFacet;
    for (std::size_t cut : {std::size_t(8), std::size_t(20), std::size_t(25), std::size_t(40), whole.size() - 1}) {
        SCOPED_TRACE(cut);
        EXPECT_THROW_MSG(Parse(whole.substr(0, cut)), misc::tqSTLParserException, end);
    }
}
