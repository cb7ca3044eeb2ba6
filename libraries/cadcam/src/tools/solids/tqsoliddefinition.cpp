// tqSolidDefinition and its visitor: copies and equality through the concrete kind.
#include "cadcam/tools/solids/tqsoliddefinition.h"

#include "cadcam/tools/solids/tqsoliddefinitioncloner.h"
#include "cadcam/tools/solids/tqsoliddefinitioncomparer.h"
#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"

namespace cadcam {

template <class T>
tqSolidDefinition<T>::~tqSolidDefinition() = default;

template <class T>
misc::tqAutoPointer<tqSolidDefinition<T>> tqSolidDefinition<T>::Clone() const {
    return tqSolidDefinitionCloner<T>::Clone(*this);
}

template <class T>
bool tqSolidDefinition<T>::IsEqual(const tqSolidDefinition& other) const {
    return tqSolidDefinitionComparer<T>::Compare(*this, other);
}

template <class T>
bool tqSolidDefinition<T>::AreEqual(const misc::tqAutoPointer<tqSolidDefinition<T>>& a,
                                    const misc::tqAutoPointer<tqSolidDefinition<T>>& b) {
    if (a.IsNull() || b.IsNull()) return a.IsNull() && b.IsNull();
    return a->IsEqual(*b);
}

template <class T>
tqSolidDefinitionVisitorGetter<T>::~tqSolidDefinitionVisitorGetter() = default;

template class tqSolidDefinition<double>;
template class tqSolidDefinition<float>;
template class tqSolidDefinitionVisitorGetter<double>;
template class tqSolidDefinitionVisitorGetter<float>;

}  // namespace cadcam
