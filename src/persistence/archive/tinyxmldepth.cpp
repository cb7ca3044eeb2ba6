// TinyXmlDepth: a walk over the text that moves exactly as TinyXML 2.6.2's parser moves (tinyxmlparser.cpp), so
// that its count of nested elements is the depth of the parser's recursion. Each function below mirrors the one of
// the same name there; where this walk and the parser disagreed, a crafted text could pass the scan and still
// overflow the stack, so the mirror is literal, down to the character tests TinyXML takes from <cctype>.
#include "persistence/archive/tinyxmldepth.h"

#include <tinyxml.h>

#include <cctype>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <unordered_set>

namespace tqWorkRig {
namespace detail {

namespace {

// Bytes of a UTF-8 sequence by its lead byte, 1 for invalid leads, as TinyXML counts them.
const int kUtf8ByteTable[256] = {
    1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1,  // 0x00
    1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1,  // 0x20
    1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1,  // 0x40
    1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1,  // 0x60
    1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1,  // 0x80
    1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1,  // 0xa0
    1, 1, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2,  // 0xc0
    3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 4, 4, 4, 4, 4, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1,  // 0xe0
};

struct Entity {
    const char* text;
    std::size_t length;
    char character;
};
const Entity kEntities[] = {
    {"&amp;", 5, '&'}, {"&lt;", 4, '<'}, {"&gt;", 4, '>'}, {"&quot;", 6, '\"'}, {"&apos;", 6, '\''}};

constexpr unsigned char kLead0 = 0xefU, kLead1 = 0xbbU, kLead2 = 0xbfU;

bool IsWhiteSpace(char c) { return std::isspace(static_cast<unsigned char>(c)) || c == '\n' || c == '\r'; }
bool IsAlpha(unsigned char b) { return b < 127 ? std::isalpha(b) != 0 : true; }
bool IsAlphaNum(unsigned char b) { return b < 127 ? std::isalnum(b) != 0 : true; }
// TinyXML passes plain (signed) chars here; the same values go to tolower.
int ToLower(int v, TiXmlEncoding encoding) {
    if (encoding == TIXML_ENCODING_UTF8) return v < 128 ? std::tolower(v) : v;
    return std::tolower(v);
}

const char* SkipWhiteSpace(const char* p, TiXmlEncoding encoding) {
    if (!p || !*p) return nullptr;
    if (encoding == TIXML_ENCODING_UTF8) {
        while (*p) {
            const auto* u = reinterpret_cast<const unsigned char*>(p);
            // Byte-order marks and the two non-characters count as white space.
            if (u[0] == kLead0 && u[1] == kLead1 && u[2] == kLead2) {
                p += 3;
                continue;
            } else if (u[0] == kLead0 && u[1] == 0xbfU && u[2] == 0xbeU) {
                p += 3;
                continue;
            } else if (u[0] == kLead0 && u[1] == 0xbfU && u[2] == 0xbfU) {
                p += 3;
                continue;
            }
            if (IsWhiteSpace(*p))
                ++p;
            else
                break;
        }
    } else {
        while (*p && IsWhiteSpace(*p)) ++p;
    }
    return p;
}

bool StringEqual(const char* p, const char* tag, bool ignoreCase, TiXmlEncoding encoding) {
    if (!p || !*p) return false;
    const char* q = p;
    if (ignoreCase) {
        while (*q && *tag && ToLower(*q, encoding) == ToLower(*tag, encoding)) ++q, ++tag;
    } else {
        while (*q && *tag && *q == *tag) ++q, ++tag;
    }
    return *tag == 0;
}

void ConvertUTF32ToUTF8(unsigned long input, char* output, int* length) {
    const unsigned long kByteMask = 0xBF, kByteMark = 0x80;
    const unsigned long kFirstByteMark[7] = {0x00, 0x00, 0xC0, 0xE0, 0xF0, 0xF8, 0xFC};
    if (input < 0x80)
        *length = 1;
    else if (input < 0x800)
        *length = 2;
    else if (input < 0x10000)
        *length = 3;
    else if (input < 0x200000)
        *length = 4;
    else {
        *length = 0;
        return;
    }
    output += *length;
    for (int i = *length; i > 1; --i) {
        *--output = static_cast<char>((input | kByteMark) & kByteMask);
        input >>= 6;
    }
    *--output = static_cast<char>(input | kFirstByteMark[*length]);
}

const char* GetEntity(const char* p, char* value, int* length, TiXmlEncoding encoding) {
    *length = 0;
    if (*(p + 1) && *(p + 1) == '#' && *(p + 2)) {
        unsigned long ucs = 0;
        std::ptrdiff_t delta = 0;
        unsigned mult = 1;
        if (*(p + 2) == 'x') {
            if (!*(p + 3)) return nullptr;
            const char* q = std::strchr(p + 3, ';');
            if (!q || !*q) return nullptr;
            delta = q - p;
            --q;
            while (*q != 'x') {
                if (*q >= '0' && *q <= '9')
                    ucs += mult * (*q - '0');
                else if (*q >= 'a' && *q <= 'f')
                    ucs += mult * (*q - 'a' + 10);
                else if (*q >= 'A' && *q <= 'F')
                    ucs += mult * (*q - 'A' + 10);
                else
                    return nullptr;
                mult *= 16;
                --q;
            }
        } else {
            const char* q = std::strchr(p + 2, ';');
            if (!q || !*q) return nullptr;
            delta = q - p;
            --q;
            while (*q != '#') {
                if (*q >= '0' && *q <= '9')
                    ucs += mult * (*q - '0');
                else
                    return nullptr;
                mult *= 10;
                --q;
            }
        }
        if (encoding == TIXML_ENCODING_UTF8) {
            ConvertUTF32ToUTF8(ucs, value, length);
        } else {
            *value = static_cast<char>(ucs);
            *length = 1;
        }
        return p + delta + 1;
    }
    for (const Entity& entity : kEntities) {
        if (std::strncmp(entity.text, p, entity.length) == 0) {
            *value = entity.character;
            *length = 1;
            return p + entity.length;
        }
    }
    // An unknown '&' is skipped with length 0, so it does not reach the text.
    *value = *p;
    return p + 1;
}

const char* GetChar(const char* p, char* value, int* length, TiXmlEncoding encoding) {
    *length = encoding == TIXML_ENCODING_UTF8 ? kUtf8ByteTable[static_cast<unsigned char>(*p)] : 1;
    if (*length == 1) {
        if (*p == '&') return GetEntity(p, value, length, encoding);
        *value = *p;
        return p + 1;
    }
    // A lead byte takes its whole sequence, even a terminator inside it: hence the padding.
    for (int i = 0; p[i] && i < *length; ++i) value[i] = p[i];
    return p + *length;
}

const char* ReadName(const char* p) {
    if (p && *p && (IsAlpha(static_cast<unsigned char>(*p)) || *p == '_')) {
        while (p && *p &&
               (IsAlphaNum(static_cast<unsigned char>(*p)) || *p == '_' || *p == '-' || *p == '.' || *p == ':'))
            ++p;
        return p;
    }
    return nullptr;
}

class Scanner {
public:
    explicit Scanner(std::size_t limit) : m_limit(limit), m_condense(TiXmlBase::IsWhiteSpaceCondensed()) {}

    TinyXmlScan Run(const char* p) {
        Document(p);
        TinyXmlScan scan;
        scan.depth = m_deepest;
        scan.deeper = m_deeper;
        scan.error = m_error;
        return scan;
    }

private:
    enum class Kind { None, Declaration, Comment, CData, Unknown, Element };

    void Fail() { m_error = true; }

    const char* ReadText(const char* p, std::string* text, bool trimWhiteSpace, const char* endTag,
                         TiXmlEncoding encoding) {
        if (text) text->clear();
        if (!trimWhiteSpace || !m_condense) {
            while (p && *p && !StringEqual(p, endTag, false, encoding)) {
                int length = 0;
                char bytes[4] = {0, 0, 0, 0};
                p = GetChar(p, bytes, &length, encoding);
                if (text) text->append(bytes, static_cast<std::size_t>(length));
            }
        } else {
            bool whitespace = false;
            p = SkipWhiteSpace(p, encoding);
            while (p && *p && !StringEqual(p, endTag, false, encoding)) {
                if (*p == '\r' || *p == '\n' || IsWhiteSpace(*p)) {
                    whitespace = true;
                    ++p;
                } else {
                    if (whitespace && text) *text += ' ';
                    whitespace = false;
                    int length = 0;
                    char bytes[4] = {0, 0, 0, 0};
                    p = GetChar(p, bytes, &length, encoding);
                    if (text) text->append(bytes, static_cast<std::size_t>(length));
                }
            }
        }
        if (p && *p) p += std::strlen(endTag);
        return (p && *p) ? p : nullptr;
    }

    Kind Identify(const char* p, TiXmlEncoding encoding) const {
        p = SkipWhiteSpace(p, encoding);
        if (!p || !*p || *p != '<') return Kind::None;
        if (StringEqual(p, "<?xml", true, encoding)) return Kind::Declaration;
        if (StringEqual(p, "<!--", false, encoding)) return Kind::Comment;
        if (StringEqual(p, "<![CDATA[", false, encoding)) return Kind::CData;
        if (StringEqual(p, "<!", false, encoding)) return Kind::Unknown;
        if (IsAlpha(static_cast<unsigned char>(*(p + 1))) || *(p + 1) == '_') return Kind::Element;
        return Kind::Unknown;
    }

    const char* Parse(Kind kind, const char* p, TiXmlEncoding encoding, std::string* declaredEncoding) {
        switch (kind) {
            case Kind::Declaration:
                return Declaration(p, encoding, declaredEncoding);
            case Kind::Comment:
                return Comment(p, encoding);
            case Kind::CData:
                return Text(p, encoding, true);
            case Kind::Unknown:
                return Unknown(p, encoding);
            case Kind::Element:
                return Element(p, encoding);
            case Kind::None:
                break;
        }
        return nullptr;
    }

    void Document(const char* p) {
        TiXmlEncoding encoding = TIXML_ENCODING_UNKNOWN;
        if (!p || !*p) return Fail();
        const auto* u = reinterpret_cast<const unsigned char*>(p);
        if (u[0] && u[0] == kLead0 && u[1] && u[1] == kLead1 && u[2] && u[2] == kLead2) encoding = TIXML_ENCODING_UTF8;
        p = SkipWhiteSpace(p, encoding);
        if (!p) return Fail();
        bool anyChild = false;
        while (p && *p) {
            const Kind kind = Identify(p, encoding);
            if (kind == Kind::None) break;
            anyChild = true;
            std::string declared;
            p = Parse(kind, p, encoding, &declared);
            if (m_deeper) return;
            // The first declaration at top level fixes the encoding of everything after it.
            if (encoding == TIXML_ENCODING_UNKNOWN && kind == Kind::Declaration) {
                const char* e = declared.c_str();
                if (*e == 0 || StringEqual(e, "UTF-8", true, TIXML_ENCODING_UNKNOWN) ||
                    StringEqual(e, "UTF8", true, TIXML_ENCODING_UNKNOWN))
                    encoding = TIXML_ENCODING_UTF8;
                else
                    encoding = TIXML_ENCODING_LEGACY;
            }
            p = SkipWhiteSpace(p, encoding);
        }
        if (!anyChild) Fail();
    }

    const char* Element(const char* p, TiXmlEncoding encoding) {
        if (m_depth == m_limit) {
            m_deeper = true;
            m_deepest = m_limit + 1;
            return nullptr;
        }
        struct Level {
            std::size_t& depth;
            explicit Level(std::size_t& d) : depth(d) { ++depth; }
            ~Level() { --depth; }
        } level(m_depth);
        if (m_depth > m_deepest) m_deepest = m_depth;

        p = SkipWhiteSpace(p, encoding);
        if (!p || !*p || *p != '<') return Fail(), nullptr;
        p = SkipWhiteSpace(p + 1, encoding);
        const char* nameStart = p;
        p = ReadName(p);
        if (!p || !*p) return Fail(), nullptr;
        const std::string_view name(nameStart, static_cast<std::size_t>(p - nameStart));

        // Attributes are all read before any child, so one set serves every element in turn.
        ResetAttributes();
        while (p && *p) {
            p = SkipWhiteSpace(p, encoding);
            if (!p || !*p) return Fail(), nullptr;
            if (*p == '/') {
                ++p;
                if (*p != '>') return Fail(), nullptr;
                return p + 1;
            }
            if (*p == '>') {
                p = ReadValue(p + 1, encoding);
                if (m_deeper) return nullptr;
                if (!p || !*p) return Fail(), nullptr;
                // StringEqual(p, "</" + name): a prefix test.
                if (p[0] == '<' && p[1] == '/' && std::strncmp(p + 2, name.data(), name.size()) == 0) {
                    p = SkipWhiteSpace(p + 2 + name.size(), encoding);
                    if (p && *p && *p == '>') return p + 1;
                }
                return Fail(), nullptr;
            }
            std::string_view attribute;
            p = Attribute(p, encoding, true, &attribute, nullptr);
            if (!p || !*p) return Fail(), nullptr;
            if (!m_attributes.insert(attribute).second) return Fail(), nullptr;
        }
        return p;
    }

    const char* ReadValue(const char* p, TiXmlEncoding encoding) {
        const char* withWhiteSpace = p;
        p = SkipWhiteSpace(p, encoding);
        while (p && *p) {
            if (*p != '<') {
                p = Text(m_condense ? p : withWhiteSpace, encoding, false);
            } else {
                if (StringEqual(p, "</", false, encoding)) return p;
                const Kind kind = Identify(p, encoding);
                if (kind == Kind::None) return nullptr;
                p = Parse(kind, p, encoding, nullptr);
                if (m_deeper) return nullptr;
            }
            withWhiteSpace = p;
            p = SkipWhiteSpace(p, encoding);
        }
        if (!p) Fail();
        return p;
    }

    /// name and value are filled as TinyXML fills them, also on the way to a failure.
    const char* Attribute(const char* p, TiXmlEncoding encoding, bool inDocument, std::string_view* name,
                          std::string* value) {
        p = SkipWhiteSpace(p, encoding);
        if (!p || !*p) return nullptr;
        const char* nameStart = p;
        p = ReadName(p);
        if (!p || !*p) {
            if (inDocument) Fail();
            return nullptr;
        }
        if (name) *name = std::string_view(nameStart, static_cast<std::size_t>(p - nameStart));
        p = SkipWhiteSpace(p, encoding);
        if (!p || !*p || *p != '=') {
            if (inDocument) Fail();
            return nullptr;
        }
        p = SkipWhiteSpace(p + 1, encoding);
        if (!p || !*p) {
            if (inDocument) Fail();
            return nullptr;
        }
        if (*p == '\'') return ReadText(p + 1, value, false, "\'", encoding);
        if (*p == '\"') return ReadText(p + 1, value, false, "\"", encoding);
        if (value) value->clear();
        while (p && *p && !IsWhiteSpace(*p) && *p != '/' && *p != '>') {
            if (*p == '\'' || *p == '\"') {
                if (inDocument) Fail();
                return nullptr;
            }
            if (value) *value += *p;
            ++p;
        }
        return p;
    }

    const char* Text(const char* p, TiXmlEncoding encoding, bool cdata) {
        if (cdata || StringEqual(p, "<![CDATA[", false, encoding)) {
            if (!StringEqual(p, "<![CDATA[", false, encoding)) return Fail(), nullptr;
            p += std::strlen("<![CDATA[");
            while (p && *p && !StringEqual(p, "]]>", false, encoding)) ++p;
            return ReadText(p, nullptr, false, "]]>", encoding);
        }
        p = ReadText(p, nullptr, true, "<", encoding);
        if (p && *p) return p - 1;
        return nullptr;
    }

    const char* Comment(const char* p, TiXmlEncoding encoding) {
        p = SkipWhiteSpace(p, encoding);
        if (!StringEqual(p, "<!--", false, encoding)) return Fail(), nullptr;
        p += 4;
        while (p && *p && !StringEqual(p, "-->", false, encoding)) ++p;
        if (p && *p) p += 3;
        return p;
    }

    const char* Unknown(const char* p, TiXmlEncoding encoding) {
        p = SkipWhiteSpace(p, encoding);
        if (!p || !*p || *p != '<') return Fail(), nullptr;
        ++p;
        while (p && *p && *p != '>') ++p;
        if (p && *p == '>') return p + 1;
        return p;
    }

    /// The declaration's attributes belong to no document, so their failures set no error.
    const char* Declaration(const char* p, TiXmlEncoding encoding, std::string* declaredEncoding) {
        p = SkipWhiteSpace(p, encoding);
        if (!p || !*p || !StringEqual(p, "<?xml", true, encoding)) return Fail(), nullptr;
        p += 5;
        std::string declared;
        while (p && *p) {
            if (*p == '>') {
                if (declaredEncoding) *declaredEncoding = declared;
                return p + 1;
            }
            p = SkipWhiteSpace(p, encoding);
            if (!p || !*p) break;
            if (StringEqual(p, "version", true, encoding)) {
                p = Attribute(p, encoding, false, nullptr, nullptr);
            } else if (StringEqual(p, "encoding", true, encoding)) {
                std::string value;
                p = Attribute(p, encoding, false, nullptr, &value);
                declared = value;
            } else if (StringEqual(p, "standalone", true, encoding)) {
                p = Attribute(p, encoding, false, nullptr, nullptr);
            } else {
                while (p && *p && *p != '>' && !IsWhiteSpace(*p)) ++p;
            }
        }
        if (declaredEncoding) *declaredEncoding = declared;
        return nullptr;
    }

    void ResetAttributes() {
        if (m_attributes.empty()) return;
        // A huge set is dropped rather than cleared, so that many small elements after it stay cheap.
        if (m_attributes.bucket_count() > 64)
            std::unordered_set<std::string_view>().swap(m_attributes);
        else
            m_attributes.clear();
    }

    const std::size_t m_limit;
    const bool m_condense;
    std::size_t m_depth = 0;
    std::size_t m_deepest = 0;
    bool m_deeper = false;
    bool m_error = false;
    std::unordered_set<std::string_view> m_attributes;
};

}  // namespace

TinyXmlScan ScanTinyXml(const char* text, std::size_t limit) { return Scanner(limit).Run(text); }

}  // namespace detail
}  // namespace tqWorkRig
