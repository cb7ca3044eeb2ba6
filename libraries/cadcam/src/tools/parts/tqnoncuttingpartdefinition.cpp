// tqNonCuttingPartDefinition: its profile check and its visit; instantiated for float and double.
#include "cadcam/tools/parts/tqnoncuttingpartdefinition.h"

#include "cadcam/tools/parts/tqtoolpartdefinitionvisitor.h"
#include "cadcam/tools/validation/tqnoncuttingpartvalidation.h"
#include "tools/parts/revolvedprofile.h"

namespace cadcam {

template <class T>
tqNonCuttingPartDefinition<T>::tqNonCuttingPartDefinition() : tqToolPartDefinition<T>(measures::tqUnitsFactory::Metric, SolidPointer()) {}

template <class T>
tqNonCuttingPartDefinition<T>::tqNonCuttingPartDefinition(measures::tqUnitsFactory::Units units, const SolidPointer& solid)
    : tqToolPartDefinition<T>(units, solid) {
    if (solid.IsNull()) return;
    if (const tq2dContour<T>* profile = detail_::RevolvedProfileOf(*solid)) tqNonCuttingPartValidation<T>().Validate(*profile);
}

template <class T>
tqNonCuttingPartDefinition<T>::tqNonCuttingPartDefinition(const tqNonCuttingPartDefinition&) = default;
template <class T>
tqNonCuttingPartDefinition<T>& tqNonCuttingPartDefinition<T>::operator=(const tqNonCuttingPartDefinition&) = default;
template <class T>
tqNonCuttingPartDefinition<T>::~tqNonCuttingPartDefinition() = default;

template <class T>
void tqNonCuttingPartDefinition<T>::AcceptVisitor(tqToolPartDefinitionVisitor<T>& visitor) const {
    visitor.Visit(*this);
}

template class tqNonCuttingPartDefinition<double>;
template class tqNonCuttingPartDefinition<float>;

}  // namespace cadcam
