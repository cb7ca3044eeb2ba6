// The failure family and the helpers that throw it.
#include "misc/tqexception.h"

#include <string>

namespace misc {

tqException::tqException(std::int32_t code, const tqstring& message, const tqException* earlier)
    : m_message(message), m_code(code) {
    if (earlier != nullptr) {
        m_earlier.reserve(earlier->m_earlier.size() + 1);
        m_earlier.push_back({earlier->m_message, earlier->m_code});
        m_earlier.insert(m_earlier.end(), earlier->m_earlier.begin(), earlier->m_earlier.end());
    }
}

tqException::~tqException() = default;

void tqException::Rethrow() const { throw tqException(*this); }

tqAutoPointer<tqException> tqException::Clone() const { return tqAutoPointer<tqException>(new tqException(*this)); }

bool tqException::operator==(const tqException& other) const {
    return m_code == other.m_code && m_message == other.m_message && m_earlier == other.m_earlier;
}

#define TQ_DEFINE_EXCEPTION(Name)                                                                 \
    Name::~Name() = default;                                                                      \
    void Name::Rethrow() const { throw tqException(*this); }                                      \
    tqAutoPointer<tqException> Name::Clone() const { return tqAutoPointer<tqException>(new Name(*this)); }

TQ_DEFINE_EXCEPTION(tqmiscException)
TQ_DEFINE_EXCEPTION(tqMemoryException)
TQ_DEFINE_EXCEPTION(tqParserException)
TQ_DEFINE_EXCEPTION(tqSTLParserException)
TQ_DEFINE_EXCEPTION(tqBaseRangeException)

template <class T>
tqRangeException<T>::tqRangeException(const tqstring& message, T value, T lower, T upper)
    : tqBaseRangeException(0, message), m_value(value), m_lower(lower), m_upper(upper) {}
template <class T>
tqRangeException<T>::~tqRangeException() = default;
template <class T>
void tqRangeException<T>::Rethrow() const {
    throw tqException(*this);
}
template <class T>
tqAutoPointer<tqException> tqRangeException<T>::Clone() const {
    return tqAutoPointer<tqException>(new tqRangeException(*this));
}

template <class T>
tqIdxRangeException<T>::tqIdxRangeException(const tqstring& message, T limit, T index)
    : tqException(0, message), m_limit(limit), m_index(index) {}
template <class T>
tqIdxRangeException<T>::~tqIdxRangeException() = default;
template <class T>
void tqIdxRangeException<T>::Rethrow() const {
    throw tqException(*this);
}
template <class T>
tqAutoPointer<tqException> tqIdxRangeException<T>::Clone() const {
    return tqAutoPointer<tqException>(new tqIdxRangeException(*this));
}

template class tqRangeException<float>;
template class tqRangeException<double>;
template class tqIdxRangeException<std::uint64_t>;

void ThrowFailure(const tqstring& tag, const tqstring& text) { throw tqException(0, tag + u": " + text); }

void ThrowFailure(const tqstring& text) { throw tqException(0, text); }

namespace detail_ {

void ThrowNullPointer() { throw tqException(0, u"Accessing TQ_NULL pointer"); }

void AssertFailed(const char* source, long line, const char* condition) {
    throw tqException(0, std::string(source) + " (" + std::to_string(line) + "): TQ_ASSERT failed (" + condition + ")");
}

}  // namespace detail_

}  // namespace misc
