// tqstring: the UTF-16 string value of every interface, and its UTF-8 conversions.
#pragma once

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string>

#include "misc/export.h"

namespace misc {

/// A string of UTF-16 code units, compared and ordered by code unit.
class TQ_EXPORT tqstring {
public:
    tqstring() = default;
    /// From UTF-8; a null, empty or unconvertible source gives the empty string, invalid bytes become U+FFFD.
    tqstring(const char* utf8);
    tqstring(const std::string& utf8);
    tqstring(const char16_t* text);
    /// From UTF-32 (wchar_t is 32 bits here); code points above U+FFFF become surrogate pairs.
    tqstring(const wchar_t* text);
    tqstring(std::u16string text) : m_wide(std::move(text)) {}
    tqstring(const char16_t* text, std::size_t length) : m_wide(text, length) {}
    /// Copies the wide text only; the narrow cache starts empty.
    tqstring(const tqstring& other) : m_wide(other.m_wide) {}
    tqstring(tqstring&& other) noexcept : m_wide(std::move(other.m_wide)) {}
    tqstring& operator=(const tqstring& other);
    tqstring& operator=(tqstring&& other) noexcept;

    const std::u16string& wide() const { return m_wide; }
    const char16_t* c_str() const { return m_wide.c_str(); }
    std::size_t size() const { return m_wide.size(); }
    std::size_t length() const { return m_wide.size(); }
    bool empty() const { return m_wide.empty(); }
    char16_t operator[](std::size_t i) const { return m_wide[i]; }
    /// The narrow cache; nothing in the library fills it, so it reads empty.
    const std::string& narrow() const { return m_narrow; }

    tqstring& operator+=(const tqstring& other);
    tqstring& operator+=(char16_t unit);

    friend bool operator==(const tqstring& a, const tqstring& b) { return a.m_wide == b.m_wide; }
    friend bool operator!=(const tqstring& a, const tqstring& b) { return a.m_wide != b.m_wide; }
    friend bool operator<(const tqstring& a, const tqstring& b) { return a.m_wide < b.m_wide; }
    friend bool operator>(const tqstring& a, const tqstring& b) { return b.m_wide < a.m_wide; }
    friend bool operator<=(const tqstring& a, const tqstring& b) { return !(b.m_wide < a.m_wide); }
    friend bool operator>=(const tqstring& a, const tqstring& b) { return !(a.m_wide < b.m_wide); }

private:
    std::u16string m_wide;
    std::string m_narrow;
};

TQ_EXPORT tqstring operator+(const tqstring& a, const tqstring& b);
TQ_EXPORT tqstring operator+(const tqstring& a, const char16_t* b);
TQ_EXPORT tqstring operator+(const char16_t* a, const tqstring& b);
TQ_EXPORT tqstring operator+(const tqstring& a, const wchar_t* b);
TQ_EXPORT tqstring operator+(const wchar_t* a, const tqstring& b);
TQ_EXPORT tqstring operator+(const tqstring& a, const char* utf8);
TQ_EXPORT tqstring operator+(const char* utf8, const tqstring& b);

/// Strict UTF-8 to tqstring; invalid input throws tqException "misc::from_utf8: UTF8 -> tqstring conversioned failed ...".
TQ_EXPORT tqstring from_utf8(const std::string& utf8);
TQ_EXPORT tqstring from_utf8(const char* utf8, std::size_t length);
/// Lenient UTF-8 to tqstring: never throws, invalid bytes become U+FFFD.
TQ_EXPORT tqstring from_utf8_lenient(const char* utf8, std::size_t length);
/// tqstring to UTF-8; lone surrogates become U+FFFD.
TQ_EXPORT std::string to_utf8(const tqstring& text);
/// tqstring to UTF-32 wchar_t text.
TQ_EXPORT std::wstring to_wstring(const tqstring& text);
/// Decimal text of an integer, as the library prints numbers into messages.
TQ_EXPORT tqstring to_tqstring(long long value);
TQ_EXPORT tqstring to_tqstring(unsigned long long value);

/// Prints as UTF-8, so that test failures and hosts' logs are readable.
TQ_EXPORT std::ostream& operator<<(std::ostream& out, const tqstring& text);

}  // namespace misc



template <>
struct std::hash<misc::tqstring> {
    std::size_t operator()(const misc::tqstring& s) const noexcept { return std::hash<std::u16string>()(s.wide()); }
};
