// tqProfileValidation: the profile rules in their order.
#include "cadcam/tools/validation/tqprofilevalidation.h"

#include <cmath>
#include <cstddef>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dcontour.h"
#include "cadcam/geometry/tq2dcontourproperties.h"
#include "cadcam/geometry/tq2dintersection.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/tools/tqcadcamexception.h"

namespace cadcam {

namespace {

template <class T>
using Point = tqTPoint2d<T>;

/// Whether the segment from the axis to the profile's end point p meets the profile only near p. A segment
/// shorter than eps stands for none.
template <class T>
bool ClosingSegmentIsClear(const tq2dContour<T>& profile, const Point<T>& p, T eps) {
    const Point<T> onAxis(0, p.y);
    if (!(onAxis.DistanceTo(p) > eps)) return true;
    const tq2dLine<T> closing(onAxis, p);
    for (const auto& item : profile)
        if (!tq2dIntersection<T>(closing, *item, eps).LiesWithin(p, eps)) return false;
    return true;
}

}  // namespace

template <class T>
tqProfileValidation<T>::~tqProfileValidation() = default;

template <class T>
const tqProfileRuleNumbers& tqProfileValidation<T>::GetNumbers() const {
    static const tqProfileRuleNumbers kNumbers{2243, 2143, 2323, 2324, 2161, 2160, true, 2144,
                                              2023, 2319, 2320, 2321, 2322, 2243, 2146};
    return kNumbers;
}

template <class T>
void tqProfileValidation<T>::Validate(const tq2dContour<T>& profile) const {
    if (profile.IsEmpty()) return;
    const tqProfileRuleNumbers& numbers = GetNumbers();

    // Lines and arcs only, every value finite.
    if (!tq2dContourProperties<T>::IsMadeOfFiniteLinesAndArcs(profile)) throw tqcadcamException(numbers.contour);
    const tq2dContourProperties<T> items(profile);
    const T eps = items.GetTolerance();
    const std::size_t count = items.GetCount();
    const std::size_t last = count - 1;

    // Arcs: a radius above eps, both ends on the circle, a sweep short of a full turn.
    for (std::size_t i = 0; i < count; ++i) {
        const tq2dArc<T>* arc = items.GetArc(i);
        if (arc == nullptr) continue;
        const T r = arc->GetRadius();
        const bool ok = r > eps && std::fabs(arc->GetStart().DistanceTo(arc->GetCentre()) - r) <= eps &&
                        std::fabs(arc->GetEnd().DistanceTo(arc->GetCentre()) - r) <= eps &&
                        std::fabs(arc->GetSweep()) > 0 && std::fabs(arc->GetSweep()) < 360;
        if (!ok) throw tqcadcamException(numbers.radius);
    }

    // Rule 1: continuous, then free of self-intersection.
    if (!items.IsContinuous()) throw tqcadcamException(numbers.continuity);
    if (!items.IsSimple(false)) throw tqcadcamException(numbers.selfIntersection);

    // Rule 2: no X below zero, arc extremes included.
    for (std::size_t i = 0; i < count; ++i)
        if (!(items.GetItemBox(i).GetMin().x >= -eps)) throw tqcadcamException(numbers.sign);

    // Rule 3: the start at Y = 0 (the plain profile may start lower).
    const Point<T>& first = items.GetStart(0);
    const Point<T>& end = items.GetEnd(last);
    const T y0 = first.y;
    if (!(numbers.startMayBeBelow ? y0 <= eps : std::fabs(y0) <= eps)) throw tqcadcamException(numbers.start);

    // Nothing below the start.
    for (std::size_t i = 0; i < count; ++i)
        if (!(items.GetItemBox(i).GetMin().y >= y0 - eps)) throw tqcadcamException(numbers.height);

    // Rule 4: an item that stays at one Y must move out in X.
    for (std::size_t i = 0; i < count; ++i) {
        const Point<T> chord = items.GetEnd(i) - items.GetStart(i);
        if (std::fabs(chord.y) <= eps && !(chord.x > eps)) throw tqcadcamException(numbers.backwards);
    }

    // Rule 5: the first item does not run flat inward, the last one not flat outward.
    const Point<T> firstChord = items.GetEnd(0) - first;
    if (std::fabs(firstChord.y) <= eps && firstChord.x < 0) throw tqcadcamException(numbers.firstSegment);
    const Point<T> lastChord = end - items.GetStart(last);
    if (std::fabs(lastChord.y) <= eps && lastChord.x > 0) throw tqcadcamException(numbers.lastSegment);

    // Rule 6: the segments that close the profile to the axis meet it only at their own end.
    if (!ClosingSegmentIsClear(profile, first, eps)) throw tqcadcamException(numbers.firstLine);
    if (!ClosingSegmentIsClear(profile, end, eps)) throw tqcadcamException(numbers.lastLine);

    // Rule 7: the last item changes height.
    if (!(std::fabs(lastChord.y) > eps)) throw tqcadcamException(numbers.lastTwoPoints);

    // Rule 8: the loop closed through (0, yN) and (0, y0) runs counterclockwise. The profile's own area is
    // closed by its chord; the quadrilateral first, end, (0, yN), (0, y0) adds the rest.
    const Point<T> top = Point<T>(0, end.y) - first, bottom = Point<T>(0, y0) - first, toEnd = end - first;
    const T closing = (toEnd.Cross(top) + top.Cross(bottom)) / 2;
    if (!(items.GetSignedArea() + closing > eps * eps)) throw tqcadcamException(numbers.order);
}

template class tqProfileValidation<double>;
template class tqProfileValidation<float>;

}  // namespace cadcam
