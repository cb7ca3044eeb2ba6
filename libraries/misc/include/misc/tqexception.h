// tqException: the library's failure, with its code and the chain of earlier failures, and its family.
#pragma once

#include <cstdint>
#include <vector>

#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "misc/tqstring.h"

namespace misc {

/// One earlier failure in a chain.
struct TQ_EXPORT tqExceptionRecord {
    tqstring message;
    std::int32_t code;
    bool operator==(const tqExceptionRecord& other) const { return code == other.code && message == other.message; }
};

/// The library's failure: a message, a code (0 for the model's own failures) and earlier failures, nearest first.
class TQ_EXPORT tqException {
public:
    /// An earlier failure's chain is copied and its own message and code are put in front.
    tqException(std::int32_t code, const tqstring& message, const tqException* earlier = nullptr);
    virtual ~tqException();
    /// Throws a copy of this object as tqException.
    [[noreturn]] virtual void Rethrow() const;
    /// A heap copy of the object, of its own class.
    virtual tqAutoPointer<tqException> Clone() const;

    const tqstring& GetMessage() const { return m_message; }
    std::int32_t GetCode() const { return m_code; }
    const std::vector<tqExceptionRecord>& GetEarlierFailures() const { return m_earlier; }
    /// The message as UTF-8, for hosts that log narrow text.
    std::string What() const { return to_utf8(m_message); }

    bool operator==(const tqException& other) const;
    bool operator!=(const tqException& other) const { return !(*this == other); }

protected:
    void SetMessage(const tqstring& message) { m_message = message; }

private:
    tqstring m_message;
    std::int32_t m_code;
    std::vector<tqExceptionRecord> m_earlier;
};

#define TQ_DECLARE_EXCEPTION(Name, Base)                                                    \
    class TQ_EXPORT Name : public Base {                                                    \
    public:                                                                                 \
        Name(std::int32_t code, const tqstring& message, const tqException* earlier = nullptr) \
            : Base(code, message, earlier) {}                                               \
        explicit Name(const tqstring& message) : Base(0, message) {}                        \
        ~Name() override;                                                                   \
        [[noreturn]] void Rethrow() const override;                                         \
        tqAutoPointer<tqException> Clone() const override;                                  \
    }

TQ_DECLARE_EXCEPTION(tqmiscException, tqException);
TQ_DECLARE_EXCEPTION(tqMemoryException, tqException);
TQ_DECLARE_EXCEPTION(tqParserException, tqException);
TQ_DECLARE_EXCEPTION(tqSTLParserException, tqParserException);
TQ_DECLARE_EXCEPTION(tqBaseRangeException, tqException);

/// A value of type T outside [lower, upper].
template <class T>
class TQ_EXPORT tqRangeException : public tqBaseRangeException {
public:
    tqRangeException(const tqstring& message, T value, T lower, T upper);
    ~tqRangeException() override;
    [[noreturn]] void Rethrow() const override;
    tqAutoPointer<tqException> Clone() const override;
    T GetValue() const { return m_value; }
    T GetLower() const { return m_lower; }
    T GetUpper() const { return m_upper; }

private:
    T m_value, m_lower, m_upper;
};

/// An index above its limit.
template <class T>
class TQ_EXPORT tqIdxRangeException : public tqException {
public:
    tqIdxRangeException(const tqstring& message, T limit, T index);
    ~tqIdxRangeException() override;
    [[noreturn]] void Rethrow() const override;
    tqAutoPointer<tqException> Clone() const override;
    T GetLimit() const { return m_limit; }
    T GetIndex() const { return m_index; }

private:
    T m_limit, m_index;
};

extern template class TQ_EXPORT tqRangeException<float>;
extern template class TQ_EXPORT tqRangeException<double>;
extern template class TQ_EXPORT tqIdxRangeException<std::uint64_t>;

/// Builds and throws the library's failure: tag, ": ", text, code 0. The text stands at the call site.
[[noreturn]] TQ_EXPORT void ThrowFailure(const tqstring& tag, const tqstring& text);
/// A failure whose whole text is given, with no tag.
[[noreturn]] TQ_EXPORT void ThrowFailure(const tqstring& text);

namespace detail_ {
[[noreturn]] TQ_EXPORT void AssertFailed(const char* source, long line, const char* condition);
}  // namespace detail_

}  // namespace misc

/// Always active: throws tqException "<source> (<line>): TQ_ASSERT failed (<condition>)".
#define TQ_ASSERT(condition) \
    ((condition) ? static_cast<void>(0) : ::misc::detail_::AssertFailed(__FILE__, __LINE__, #condition))
/// The same with the source name and line given, where a message is fixed whatever file the code sits in.
#define TQ_ASSERT_AT(condition, source, line) \
    ((condition) ? static_cast<void>(0) : ::misc::detail_::AssertFailed(source, line, #condition))
