// tqCuttingPartDefinition: its profile check and its visit; instantiated for float and double.
#include "cadcam/tools/parts/tqcuttingpartdefinition.h"

#include "cadcam/tools/parts/tqtoolpartdefinitionvisitor.h"
#include "cadcam/tools/validation/tqcuttingpartvalidation.h"
#include "tools/parts/revolvedprofile.h"

namespace cadcam {

template <class T>
tqCuttingPartDefinition<T>::tqCuttingPartDefinition() : tqToolPartDefinition<T>(measures::tqUnitsFactory::Metric, SolidPointer()) {}

template <class T>
tqCuttingPartDefinition<T>::tqCuttingPartDefinition(measures::tqUnitsFactory::Units units, const SolidPointer& solid)
    : tqToolPartDefinition<T>(units, solid) {
    if (solid.IsNull()) return;
    if (const tq2dContour<T>* profile = detail_::RevolvedProfileOf(*solid)) tqCuttingPartValidation<T>().Validate(*profile);
}

template <class T>
tqCuttingPartDefinition<T>::tqCuttingPartDefinition(const tqCuttingPartDefinition&) = default;
template <class T>
tqCuttingPartDefinition<T>& tqCuttingPartDefinition<T>::operator=(const tqCuttingPartDefinition&) = default;
template <class T>
tqCuttingPartDefinition<T>::~tqCuttingPartDefinition() = default;

template <class T>
void tqCuttingPartDefinition<T>::AcceptVisitor(tqToolPartDefinitionVisitor<T>& visitor) const {
    visitor.Visit(*this);
}

template class tqCuttingPartDefinition<double>;
template class tqCuttingPartDefinition<float>;

}  // namespace cadcam
