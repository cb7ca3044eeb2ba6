// tqProfileToShapeIf: what checks a profile before it becomes a shape.
#pragma once

#include "misc/export.h"

namespace cadcam {

template <class T>
class tq2dContour;

/// Checks a revolved profile; throws tqcadcamException with the number of the first rule it breaks.
template <class T>
class TQ_EXPORT tqProfileToShapeIf {
public:
    virtual ~tqProfileToShapeIf();
    /// Returns when the profile may be revolved into a solid; an empty profile is valid.
    virtual void Validate(const tq2dContour<T>& profile) const = 0;
};

extern template class TQ_EXPORT tqProfileToShapeIf<double>;
extern template class TQ_EXPORT tqProfileToShapeIf<float>;

}  // namespace cadcam
