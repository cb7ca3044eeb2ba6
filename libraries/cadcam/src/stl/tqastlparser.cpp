// The text STL parser: a small lexer over the input in blocks, and the grammar of solids and facets.
#include "cadcam/stl/tqastlparser.h"

#include <charconv>
#include <cstring>
#include <memory>

#include "misc/tqbinstream.h"
#include "misc/tqexception.h"
#include "stlfailure.h"

namespace cadcam {

namespace {

using stl::Fail;
using stl::kInvalidFormat;
using stl::kUnexpectedEnd;

constexpr const char16_t* kFacetParameters = u"Keyword 'facet' with wrong parameters found";
constexpr const char16_t* kNoOuterLoop = u"Not detected 'outer loop' keyword";
constexpr const char16_t* kVertexParameters = u"Keyword 'vertex' with wrong parameters found";
constexpr const char16_t* kEndLoopFollowed = u"Found keyword 'endloop' or 'end loop' followed by other string";
constexpr const char16_t* kEndFacetFollowed = u"Found keyword 'endfacet' or 'end facet' followed by other string";
constexpr const char16_t* kUnknownKeyword = u"Unknown keyword found while parsing .stl file";

constexpr std::size_t kBlockSize = 1 << 16;
// Longer than any keyword or any number worth reading; longer words are scanned, not kept.
constexpr std::size_t kMaxWord = 64;

/// One whitespace-delimited word; an overlong word keeps its first kMaxWord characters and matches nothing.
struct Word {
    char text[kMaxWord];
    std::size_t length = 0;
    bool overlong = false;

    bool Is(const char* keyword) const {
        if (overlong || std::strlen(keyword) != length) return false;
        for (std::size_t i = 0; i < length; ++i) {
            char c = text[i];
            if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
            if (c != keyword[i]) return false;
        }
        return true;
    }
    bool ToNumber(double& value) const {
        if (overlong || length == 0) return false;
        const char* first = text;
        // from_chars takes no leading '+', which some writers put before exponents and mantissas alike.
        if (*first == '+' && length > 1 && first[1] != '-') ++first;
        const auto result = std::from_chars(first, text + length, value);
        return result.ec == std::errc() && result.ptr == text + length;
    }
};

bool IsBlank(int c) { return c == ' ' || c == '\t' || c == '\v' || c == '\f'; }
bool IsLineEnd(int c) { return c == '\n' || c == '\r'; }

class Lexer {
public:
    Lexer(misc::tqBinInputStream& input, std::uint64_t& bytesRead)
        : m_input(input), m_bytesRead(bytesRead), m_block(new char[kBlockSize]) {}

    /// The next byte, or -1 at the end of the input.
    int Peek() {
        if (m_begin == m_end && !Refill()) return -1;
        return static_cast<unsigned char>(m_block[m_begin]);
    }
    void Advance() { ++m_begin; }

    void SkipBlanks() {
        for (int c = Peek(); IsBlank(c); c = Peek()) Advance();
    }
    /// Skips blanks and line ends; false at the end of the input.
    bool SkipSpace() {
        for (int c = Peek();; c = Peek()) {
            if (c < 0) return false;
            if (!IsBlank(c) && !IsLineEnd(c)) return true;
            Advance();
        }
    }
    /// After blanks: is the line (or the input) over?
    bool AtLineEnd() {
        SkipBlanks();
        const int c = Peek();
        return c < 0 || IsLineEnd(c);
    }
    void SkipLine() {
        for (int c = Peek(); c >= 0 && !IsLineEnd(c); c = Peek()) Advance();
    }
    void SkipByteOrderMark() {
        static const unsigned char kBom[] = {0xEF, 0xBB, 0xBF};
        if (Peek() != kBom[0]) return;
        // The lexer's block always holds the first three bytes of a stream that has them.
        if (m_end - m_begin >= 3 && std::memcmp(m_block.get() + m_begin, kBom, 3) == 0) m_begin += 3;
    }
    Word ReadWord() {
        Word word;
        for (int c = Peek(); c >= 0 && !IsBlank(c) && !IsLineEnd(c); c = Peek()) {
            if (word.length < kMaxWord)
                word.text[word.length++] = static_cast<char>(c);
            else
                word.overlong = true;
            Advance();
        }
        return word;
    }
    /// The next word on this line; at the end of the input throws the end failure, at the line's end `text`.
    Word NextOnLine(const char16_t* text) {
        SkipBlanks();
        const int c = Peek();
        if (c < 0) Fail(kUnexpectedEnd);
        if (IsLineEnd(c)) Fail(text);
        return ReadWord();
    }
    /// The first word of the next line that has one; the end of the input throws the end failure.
    Word NextLine() {
        if (!SkipSpace()) Fail(kUnexpectedEnd);
        return ReadWord();
    }

private:
    bool Refill() {
        std::uint64_t count = kBlockSize;
        m_input.Read(m_block.get(), count);
        m_bytesRead += count;
        m_begin = 0;
        m_end = static_cast<std::size_t>(count);
        return count > 0;
    }

    misc::tqBinInputStream& m_input;
    std::uint64_t& m_bytesRead;
    std::unique_ptr<char[]> m_block;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
};

bool IsKeyword(const Word& w) {
    static const char* const kKeywords[] = {"solid",  "facet",   "normal",   "outer",    "loop", "outerloop",
                                            "vertex", "endloop", "endfacet", "endsolid", "end"};
    for (const char* keyword : kKeywords)
        if (w.Is(keyword)) return true;
    return false;
}

/// A word where another keyword belongs: a keyword out of place breaks the file's structure, anything else
/// is an unknown word.
[[noreturn]] void Misplaced(const Word& w) { Fail(IsKeyword(w) ? kInvalidFormat : kUnknownKeyword); }

/// Three numbers and the line's end, or the failure `text`.
void ReadTriple(Lexer& lexer, const char16_t* text, double (&xyz)[3]) {
    for (double& value : xyz)
        if (!lexer.NextOnLine(text).ToNumber(value)) Fail(text);
    if (!lexer.AtLineEnd()) Fail(text);
}

/// "endloop" or "end loop" (and the facet's counterparts), alone on its line.
void ReadEnd(Lexer& lexer, const char* joined, const char* second, const char16_t* followed) {
    const Word w = lexer.NextLine();
    if (w.Is("end")) {
        lexer.SkipBlanks();
        const Word next = lexer.ReadWord();
        if (!next.Is(second)) Fail(next.Is("loop") || next.Is("facet") ? kInvalidFormat : kUnknownKeyword);
    } else if (!w.Is(joined)) {
        Misplaced(w);
    }
    if (!lexer.AtLineEnd()) Fail(followed);
}

void ReadFacet(Lexer& lexer, tqASTLParser::Commands& commands) {
    if (!lexer.NextOnLine(kFacetParameters).Is("normal")) Fail(kFacetParameters);
    double xyz[3];
    ReadTriple(lexer, kFacetParameters, xyz);
    commands.SetNormal(xyz[0], xyz[1], xyz[2]);

    const Word outer = lexer.NextLine();
    if (outer.Is("outer")) {
        lexer.SkipBlanks();
        if (!lexer.ReadWord().Is("loop")) Fail(kNoOuterLoop);
    } else if (!outer.Is("outerloop")) {
        Fail(kNoOuterLoop);
    }
    if (!lexer.AtLineEnd()) Fail(kNoOuterLoop);

    using Setter = void (tqASTLParser::Commands::*)(double, double, double);
    static const Setter kCorners[] = {&tqASTLParser::Commands::SetFirstPoint, &tqASTLParser::Commands::SetSecondPoint,
                                      &tqASTLParser::Commands::SetThirdPoint};
    for (const Setter corner : kCorners) {
        const Word vertex = lexer.NextLine();
        if (!vertex.Is("vertex")) Misplaced(vertex);
        ReadTriple(lexer, kVertexParameters, xyz);
        (commands.*corner)(xyz[0], xyz[1], xyz[2]);
    }

    ReadEnd(lexer, "endloop", "loop", kEndLoopFollowed);
    ReadEnd(lexer, "endfacet", "facet", kEndFacetFollowed);
    commands.EndFacet();
}

}  // namespace

tqASTLParser::Commands::~Commands() = default;

tqASTLParser::tqASTLParser(misc::tqBinInputStream& input) : m_input(input), m_bytesRead(0) {}

void tqASTLParser::Parse(Commands& commands) {
    Lexer lexer(m_input, m_bytesRead);
    lexer.SkipByteOrderMark();
    if (!lexer.SkipSpace() || !lexer.ReadWord().Is("solid")) Fail(kInvalidFormat);
    lexer.SkipLine();  // the solid's name, free text
    try {
        for (;;) {
            const Word w = lexer.NextLine();
            if (w.Is("facet")) {
                ReadFacet(lexer, commands);
            } else if (w.Is("endsolid")) {
                lexer.SkipLine();
                if (!lexer.SkipSpace()) return;
                // Several solids may share a file.
                if (!lexer.ReadWord().Is("solid")) Fail(kInvalidFormat);
                lexer.SkipLine();
            } else {
                Misplaced(w);
            }
        }
    } catch (const misc::tqSTLParserException&) {
        // A fault on the text's last line, cut short, is the cut and not the words it left.
        if (lexer.AtLineEnd() && lexer.Peek() < 0) Fail(kUnexpectedEnd);
        throw;
    }
}

}  // namespace cadcam
