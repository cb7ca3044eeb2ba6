// tqSolidDefinition: the abstract base of every solid a tool part can be made of.
#pragma once

#include "measures/tqmeasurable.h"
#include "misc/export.h"
#include "misc/tqautopointer.h"

namespace cadcam {

template <class T>
class tqSolidDefinitionVisitorGetter;

/// What a shape is, in its own units. What differs by kind goes through tqSolidDefinitionVisitorGetter.
template <class T>
class TQ_EXPORT tqSolidDefinition : public measures::tqMeasurable {
public:
    ~tqSolidDefinition() override;

    /// Calls the visitor's Visit for this solid's concrete kind.
    virtual void AcceptVisitor(tqSolidDefinitionVisitorGetter<T>& visitor) const = 0;

    /// A deep copy of the concrete kind (through tqSolidDefinitionCloner).
    misc::tqAutoPointer<tqSolidDefinition<T>> Clone() const;
    /// Exact equality across kinds: the same concrete kind, equal by that kind's operator==.
    bool IsEqual(const tqSolidDefinition& other) const;
    /// IsEqual for pointers: two nulls are equal, one null is not.
    static bool AreEqual(const misc::tqAutoPointer<tqSolidDefinition<T>>& a,
                         const misc::tqAutoPointer<tqSolidDefinition<T>>& b);

protected:
    explicit tqSolidDefinition(measures::tqUnitsFactory::Units units) : measures::tqMeasurable(units) {}
    tqSolidDefinition(const tqSolidDefinition&) = default;
    tqSolidDefinition& operator=(const tqSolidDefinition&) = default;
};

extern template class TQ_EXPORT tqSolidDefinition<double>;
extern template class TQ_EXPORT tqSolidDefinition<float>;

}  // namespace cadcam
