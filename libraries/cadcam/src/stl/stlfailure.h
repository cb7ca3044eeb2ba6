// The STL reader's and writer's failure texts, shared by the binary translator and the text parser.
#pragma once

#include "misc/tqexception.h"

namespace cadcam {
namespace stl {

constexpr const char16_t* kInvalidFormat = u"Invalid .stl file format!";
constexpr const char16_t* kInvalidCount = u"Invalid number of triangles found in .stl file!";
constexpr const char16_t* kUnexpectedEnd = u"Unexpected end of input stream occurred when reading .stl file";

/// Every STL failure, reading or writing, is a tqSTLParserException with code 0.
[[noreturn]] inline void Fail(const misc::tqstring& text) { throw misc::tqSTLParserException(text); }

}  // namespace stl
}  // namespace cadcam
