// TinyXmlDepth: how deep TinyXML's recursive parser would nest on a text, found without recursing that deep.
#pragma once

#include <cstddef>

namespace tqWorkRig {
namespace detail {

/// Zero bytes that must follow the text's terminator: TinyXML's UTF-8 reader can step up to three bytes past a
/// terminator that ends a multi-byte sequence, and the parser and this scan then read there.
constexpr std::size_t kTinyXmlPadding = 8;

/// The outcome of a scan.
struct TinyXmlScan {
    /// The deepest element nesting the parser reaches, counted up to limit + 1.
    std::size_t depth = 0;
    /// True when the parser would nest more than limit elements; the scan stops there.
    bool deeper = false;
    /// True when TiXmlDocument::Parse would report an error (meaningful only when not deeper).
    bool error = false;
};

/// Follows TiXmlDocument::Parse(text, 0, TIXML_ENCODING_UNKNOWN) step by step: the same pointer moves, the same
/// encoding switch after a declaration, the same errors, with recursion no deeper than limit. text must be
/// terminated and followed by kTinyXmlPadding zero bytes.
TinyXmlScan ScanTinyXml(const char* text, std::size_t limit);

}  // namespace detail
}  // namespace tqWorkRig
