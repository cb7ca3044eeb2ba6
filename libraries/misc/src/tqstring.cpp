// tqstring and the conversions between UTF-8, UTF-16 and UTF-32.
#include "misc/tqstring.h"

#include <cstring>
#include <ostream>

#include "misc/tqexception.h"

namespace misc {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

void AppendCodePoint(std::u16string& out, char32_t cp) {
    if (cp < 0x10000) {
        out.push_back(static_cast<char16_t>(cp));
    } else {
        cp -= 0x10000;
        out.push_back(static_cast<char16_t>(0xD800 + (cp >> 10)));
        out.push_back(static_cast<char16_t>(0xDC00 + (cp & 0x3FF)));
    }
}

// Decodes one UTF-8 sequence at text[i]; returns false for an invalid one (overlong, surrogate, out of range,
// truncated), in which case i advances by one byte.
bool DecodeUtf8(const unsigned char* text, std::size_t length, std::size_t& i, char32_t& cp) {
    const unsigned char lead = text[i];
    if (lead < 0x80) {
        cp = lead;
        ++i;
        return true;
    }
    std::size_t extra;
    char32_t minimum;
    if ((lead & 0xE0) == 0xC0) {
        extra = 1, cp = lead & 0x1F, minimum = 0x80;
    } else if ((lead & 0xF0) == 0xE0) {
        extra = 2, cp = lead & 0x0F, minimum = 0x800;
    } else if ((lead & 0xF8) == 0xF0) {
        extra = 3, cp = lead & 0x07, minimum = 0x10000;
    } else {
        ++i;
        return false;
    }
    if (length - i <= extra) {
        ++i;
        return false;
    }
    for (std::size_t k = 1; k <= extra; ++k) {
        const unsigned char c = text[i + k];
        if ((c & 0xC0) != 0x80) {
            ++i;
            return false;
        }
        cp = (cp << 6) | (c & 0x3F);
    }
    if (cp < minimum || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) {
        ++i;
        return false;
    }
    i += extra + 1;
    return true;
}

void AppendUtf8(std::string& out, char32_t cp) {
    if (cp < 0x80) {
        out.push_back(static_cast<char>(cp));
    } else if (cp < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (cp >> 6)));
        out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    } else if (cp < 0x10000) {
        out.push_back(static_cast<char>(0xE0 | (cp >> 12)));
        out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xF0 | (cp >> 18)));
        out.push_back(static_cast<char>(0x80 | ((cp >> 12) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    }
}

// Walks UTF-16 code units as code points; a lone surrogate yields U+FFFD.
template <class Sink>
void ForEachCodePoint(const std::u16string& text, Sink sink) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t u = text[i];
        if (u >= 0xD800 && u <= 0xDBFF && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF) {
            sink(0x10000 + ((static_cast<char32_t>(u) - 0xD800) << 10) + (text[i + 1] - 0xDC00));
            ++i;
        } else if (u >= 0xD800 && u <= 0xDFFF) {
            sink(kReplacement);
        } else {
            sink(u);
        }
    }
}

}  // namespace

tqstring::tqstring(const char* utf8) {
    if (utf8 != nullptr) m_wide = from_utf8_lenient(utf8, std::strlen(utf8)).m_wide;
}

tqstring::tqstring(const std::string& utf8) : m_wide(from_utf8_lenient(utf8.data(), utf8.size()).m_wide) {}

tqstring::tqstring(const char16_t* text) {
    if (text != nullptr) m_wide = text;
}

tqstring::tqstring(const wchar_t* text) {
    if (text == nullptr) return;
    for (; *text != 0; ++text) {
        const auto cp = static_cast<char32_t>(*text);
        AppendCodePoint(m_wide, (cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) ? kReplacement : cp);
    }
}

tqstring& tqstring::operator=(const tqstring& other) {
    m_wide = other.m_wide;
    return *this;
}

tqstring& tqstring::operator=(tqstring&& other) noexcept {
    m_wide = std::move(other.m_wide);
    return *this;
}

tqstring& tqstring::operator+=(const tqstring& other) {
    m_wide += other.m_wide;
    return *this;
}

tqstring& tqstring::operator+=(char16_t unit) {
    m_wide += unit;
    return *this;
}

tqstring operator+(const tqstring& a, const tqstring& b) { return tqstring(a.wide() + b.wide()); }
tqstring operator+(const tqstring& a, const char16_t* b) { return a + tqstring(b); }
tqstring operator+(const char16_t* a, const tqstring& b) { return tqstring(a) + b; }
tqstring operator+(const tqstring& a, const wchar_t* b) { return a + tqstring(b); }
tqstring operator+(const wchar_t* a, const tqstring& b) { return tqstring(a) + b; }
tqstring operator+(const tqstring& a, const char* utf8) { return a + tqstring(utf8); }
tqstring operator+(const char* utf8, const tqstring& b) { return tqstring(utf8) + b; }

tqstring from_utf8(const char* utf8, std::size_t length) {
    std::u16string out;
    out.reserve(length);
    const auto* text = reinterpret_cast<const unsigned char*>(utf8);
    for (std::size_t i = 0; i < length;) {
        char32_t cp;
        if (!DecodeUtf8(text, length, i, cp))
            ThrowFailure(u"misc::from_utf8",
                         "UTF8 -> tqstring conversioned failed (most likely cause: invalid UTF8 sequence)");
        AppendCodePoint(out, cp);
    }
    return tqstring(std::move(out));
}

tqstring from_utf8(const std::string& utf8) { return from_utf8(utf8.data(), utf8.size()); }

tqstring from_utf8_lenient(const char* utf8, std::size_t length) {
    std::u16string out;
    out.reserve(length);
    const auto* text = reinterpret_cast<const unsigned char*>(utf8);
    for (std::size_t i = 0; i < length;) {
        char32_t cp;
        AppendCodePoint(out, DecodeUtf8(text, length, i, cp) ? cp : kReplacement);
    }
    return tqstring(std::move(out));
}

std::string to_utf8(const tqstring& text) {
    std::string out;
    out.reserve(text.size());
    ForEachCodePoint(text.wide(), [&](char32_t cp) { AppendUtf8(out, cp); });
    return out;
}

std::wstring to_wstring(const tqstring& text) {
    std::wstring out;
    out.reserve(text.size());
    ForEachCodePoint(text.wide(), [&](char32_t cp) { out.push_back(static_cast<wchar_t>(cp)); });
    return out;
}

tqstring to_tqstring(long long value) { return tqstring(std::to_string(value)); }
tqstring to_tqstring(unsigned long long value) { return tqstring(std::to_string(value)); }

std::ostream& operator<<(std::ostream& out, const tqstring& text) { return out << to_utf8(text); }

}  // namespace misc
