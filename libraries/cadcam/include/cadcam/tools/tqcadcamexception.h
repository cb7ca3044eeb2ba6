// tqcadcamException: the catalogue's failure, whose text is chosen by its number.
#pragma once

#include <cstdint>

#include "misc/tqexception.h"

namespace cadcam {

/// A numbered failure of the tool catalogue. The text comes from the catalogue's table; a number without an
/// entry reads "cadcam error N.".
class TQ_EXPORT tqcadcamException : public misc::tqException {
public:
    explicit tqcadcamException(std::int32_t number, const misc::tqException* previous = nullptr);
    ~tqcadcamException() override;
    [[noreturn]] void Rethrow() const override;
    misc::tqAutoPointer<misc::tqException> Clone() const override;

    /// The text that a failure of this number carries.
    static misc::tqstring TextOf(std::int32_t number);
};

}  // namespace cadcam
