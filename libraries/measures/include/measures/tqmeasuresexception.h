// tqmeasuresException: units failures, whose text follows from their code.
#pragma once

#include "misc/tqexception.h"

namespace measures {

/// A units failure; the text is chosen by the code: 2141 "Unknown Units", 2146 "Undefined ScaleFactor", else "Unknown error.".
class TQ_EXPORT tqmeasuresException : public misc::tqException {
public:
    static constexpr std::int32_t kUnknownUnits = 2141;
    static constexpr std::int32_t kUndefinedScaleFactor = 2146;

    explicit tqmeasuresException(std::int32_t code, const misc::tqException* earlier = nullptr);
    ~tqmeasuresException() override;
    [[noreturn]] void Rethrow() const override;
    misc::tqAutoPointer<misc::tqException> Clone() const override;

    /// The text of a code.
    static misc::tqstring TextOf(std::int32_t code);
};

}  // namespace measures
