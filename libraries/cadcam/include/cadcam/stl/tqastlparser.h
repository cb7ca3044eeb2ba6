// tqASTLParser: the parser of text STL, which hands each facet's parts to a receiver as it reads them.
#pragma once

#include <cstdint>

#include "misc/export.h"

namespace misc {
class tqBinInputStream;
}

namespace cadcam {

/// Reads text STL line by line: "solid", then facets of "facet normal", "outer loop" (or "outerloop"),
/// three "vertex" lines, "endloop" (or "end loop") and "endfacet" (or "end facet"), then "endsolid".
/// Keywords match in any letter case; further solids may follow an "endsolid". Malformed text throws
/// misc::tqSTLParserException with the text that names the fault. Memory use does not depend on the input.
class TQ_EXPORT tqASTLParser {
public:
    /// Receives the parts of the facet under construction, in file order.
    class TQ_EXPORT Commands {
    public:
        virtual ~Commands();
        virtual void SetNormal(double x, double y, double z) = 0;
        virtual void SetFirstPoint(double x, double y, double z) = 0;
        virtual void SetSecondPoint(double x, double y, double z) = 0;
        virtual void SetThirdPoint(double x, double y, double z) = 0;
        /// The facet under construction is complete.
        virtual void EndFacet() = 0;
    };

    /// A parser over the input, read from its current position.
    explicit tqASTLParser(misc::tqBinInputStream& input);

    /// Parses to the end of the input, calling commands for every facet.
    void Parse(Commands& commands);
    /// Bytes taken from the input so far (read ahead in blocks, so slightly ahead of the parse).
    std::uint64_t GetBytesRead() const { return m_bytesRead; }

private:
    misc::tqBinInputStream& m_input;
    std::uint64_t m_bytesRead;
};

}  // namespace cadcam
