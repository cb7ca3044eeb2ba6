// The closed set of tool part roles, in the order of the visitor's slots.
#pragma once

#include "misc/tqtypelist.h"

namespace cadcam {

template <class T> class tqToolPartDefinition;
template <class T> class tqHolderDefinition;
template <class T> class tqArborDefinition;
template <class T> class tqNonCuttingPartDefinition;
template <class T> class tqCuttingPartDefinition;

/// Every role of a tool part; the cloner by role and the comparer follow from it.
template <class T>
using tqToolPartDefinitionList = misc::tqTypeList<tqHolderDefinition<T>, tqArborDefinition<T>,
                                                  tqNonCuttingPartDefinition<T>, tqCuttingPartDefinition<T>>;

}  // namespace cadcam
