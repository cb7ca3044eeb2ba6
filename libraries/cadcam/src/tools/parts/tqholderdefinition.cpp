// tqHolderDefinition: its profile check and its visit; instantiated for float and double.
#include "cadcam/tools/parts/tqholderdefinition.h"

#include "cadcam/tools/parts/tqtoolpartdefinitionvisitor.h"
#include "cadcam/tools/validation/tqholdervalidation.h"
#include "tools/parts/revolvedprofile.h"

namespace cadcam {

template <class T>
tqHolderDefinition<T>::tqHolderDefinition() : tqToolPartDefinition<T>(measures::tqUnitsFactory::Metric, SolidPointer()) {}

template <class T>
tqHolderDefinition<T>::tqHolderDefinition(measures::tqUnitsFactory::Units units, const SolidPointer& solid)
    : tqToolPartDefinition<T>(units, solid) {
    if (solid.IsNull()) return;
    if (const tq2dContour<T>* profile = detail_::RevolvedProfileOf(*solid)) tqHolderValidation<T>().Validate(*profile);
}

template <class T>
tqHolderDefinition<T>::tqHolderDefinition(const tqHolderDefinition&) = default;
template <class T>
tqHolderDefinition<T>& tqHolderDefinition<T>::operator=(const tqHolderDefinition&) = default;
template <class T>
tqHolderDefinition<T>::~tqHolderDefinition() = default;

template <class T>
void tqHolderDefinition<T>::AcceptVisitor(tqToolPartDefinitionVisitor<T>& visitor) const {
    visitor.Visit(*this);
}

template class tqHolderDefinition<double>;
template class tqHolderDefinition<float>;

}  // namespace cadcam
