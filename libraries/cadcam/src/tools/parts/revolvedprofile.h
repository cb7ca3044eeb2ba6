// The profile of a solid when it is a revolved one, for the role checks of tool parts.
#pragma once

#include "cadcam/geometry/tq2dcontour.h"
#include "cadcam/tools/solids/tqsoliddefinition.h"

namespace cadcam {
namespace detail_ {

/// The profile of solid if it is a tqRevolvedSolidDefinition, else null.
template <class T>
const tq2dContour<T>* RevolvedProfileOf(const tqSolidDefinition<T>& solid);

}  // namespace detail_
}  // namespace cadcam
