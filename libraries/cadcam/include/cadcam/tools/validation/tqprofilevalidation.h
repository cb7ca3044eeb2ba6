// tqProfileValidation: the rules every revolved profile obeys, reported with the numbers of a plain profile.
#pragma once

#include <cstdint>

#include "cadcam/tools/validation/tqprofiletoshapeif.h"

namespace cadcam {

/// The numbers one validator reports, rule by rule; roles differ in some of them.
struct tqProfileRuleNumbers {
    std::int32_t contour;           ///< an item that is neither line nor arc, or a value that is not finite
    std::int32_t radius;            ///< an arc with a bad radius, off its circle, or a bad sweep
    std::int32_t continuity;        ///< an item that does not start where the previous one ends
    std::int32_t selfIntersection;  ///< two items that meet or come closer than the tolerance
    std::int32_t sign;              ///< an X below zero
    std::int32_t start;             ///< a first point off Y = 0
    bool startMayBeBelow;           ///< the plain profile accepts a start below Y = 0
    std::int32_t height;            ///< a Y below the first point's
    std::int32_t backwards;         ///< a move back in X at the same Y
    std::int32_t firstSegment;      ///< a first segment running flat towards decreasing X
    std::int32_t lastSegment;       ///< a last segment running flat towards increasing X
    std::int32_t firstLine;         ///< the bottom closing segment meets the profile
    std::int32_t lastLine;          ///< the top closing segment meets the profile
    std::int32_t lastTwoPoints;     ///< the last item is flat
    std::int32_t order;             ///< the closed loop is not counterclockwise
};

/// Applies the profile rules in their order; the first broken rule throws tqcadcamException with this
/// validator's number for it. Subclasses change only the numbers.
template <class T>
class TQ_EXPORT tqProfileValidation : public tqProfileToShapeIf<T> {
public:
    tqProfileValidation() = default;
    ~tqProfileValidation() override;
    void Validate(const tq2dContour<T>& profile) const override;

protected:
    /// The numbers this validator reports.
    virtual const tqProfileRuleNumbers& GetNumbers() const;
};

extern template class TQ_EXPORT tqProfileValidation<double>;
extern template class TQ_EXPORT tqProfileValidation<float>;

}  // namespace cadcam
