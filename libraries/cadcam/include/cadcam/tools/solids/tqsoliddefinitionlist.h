// The closed set of concrete solid definitions, in the order of the visitor's slots.
#pragma once

#include "misc/tqtypelist.h"

namespace cadcam {

template <class T> class tqSolidDefinition;
template <class T> class tqWireSolidDefinition;
template <class T> class tqContourTurningSolidDefinition;
template <class T> class tqTurningSolidDefinition;
template <class T> class tqMeshSolidDefinition;
template <class T> class tqExtrudedSolidDefinition;
template <class T> class tqRevolvedSolidDefinition;

/// Every concrete solid definition; the cloner, the comparer and the type finder follow from it.
template <class T>
using tqSolidDefinitionList =
    misc::tqTypeList<tqWireSolidDefinition<T>, tqContourTurningSolidDefinition<T>, tqTurningSolidDefinition<T>,
                     tqMeshSolidDefinition<T>, tqExtrudedSolidDefinition<T>, tqRevolvedSolidDefinition<T>>;

}  // namespace cadcam
