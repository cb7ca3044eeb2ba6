// tqArborDefinition: its profile check and its visit; instantiated for float and double.
#include "cadcam/tools/parts/tqarbordefinition.h"

#include "cadcam/tools/parts/tqtoolpartdefinitionvisitor.h"
#include "cadcam/tools/validation/tqarborvalidation.h"
#include "tools/parts/revolvedprofile.h"

namespace cadcam {

template <class T>
tqArborDefinition<T>::tqArborDefinition() : tqToolPartDefinition<T>(measures::tqUnitsFactory::Metric, SolidPointer()) {}

template <class T>
tqArborDefinition<T>::tqArborDefinition(measures::tqUnitsFactory::Units units, const SolidPointer& solid)
    : tqToolPartDefinition<T>(units, solid) {
    if (solid.IsNull()) return;
    if (const tq2dContour<T>* profile = detail_::RevolvedProfileOf(*solid)) tqArborValidation<T>().Validate(*profile);
}

template <class T>
tqArborDefinition<T>::tqArborDefinition(const tqArborDefinition&) = default;
template <class T>
tqArborDefinition<T>& tqArborDefinition<T>::operator=(const tqArborDefinition&) = default;
template <class T>
tqArborDefinition<T>::~tqArborDefinition() = default;

template <class T>
void tqArborDefinition<T>::AcceptVisitor(tqToolPartDefinitionVisitor<T>& visitor) const {
    visitor.Visit(*this);
}

template class tqArborDefinition<double>;
template class tqArborDefinition<float>;

}  // namespace cadcam
