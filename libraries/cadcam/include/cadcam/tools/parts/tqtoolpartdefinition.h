// tqToolPartDefinition: a solid with a role in a tool (cutting, non-cutting, arbor or holder).
#pragma once

#include "cadcam/tools/solids/tqsoliddefinition.h"
#include "measures/tqmeasurable.h"
#include "misc/export.h"
#include "misc/tqautopointer.h"

namespace cadcam {

template <class T>
class tqToolPartDefinitionVisitor;

/// A shared solid and the role it plays. The role is the concrete class; what differs by role goes through
/// tqToolPartDefinitionVisitor. A copy shares the solid; Clone copies it.
template <class T>
class TQ_EXPORT tqToolPartDefinition : public measures::tqMeasurable {
public:
    using SolidPointer = misc::tqAutoPointer<tqSolidDefinition<T>>;

    ~tqToolPartDefinition() override;

    /// Calls the visitor's Visit for this part's role.
    virtual void AcceptVisitor(tqToolPartDefinitionVisitor<T>& visitor) const = 0;

    /// The solid; null when the part has none.
    const SolidPointer& GetSolid() const { return m_solid; }

    /// A part of the same role, with a clone of the solid.
    misc::tqAutoPointer<tqToolPartDefinition<T>> Clone() const;
    /// The same role, the same units and equal solids (two missing solids are equal).
    bool IsEqual(const tqToolPartDefinition& other) const;
    /// IsEqual for pointers: two nulls are equal, one null is not.
    static bool AreEqual(const misc::tqAutoPointer<tqToolPartDefinition<T>>& a,
                         const misc::tqAutoPointer<tqToolPartDefinition<T>>& b);

protected:
    tqToolPartDefinition(measures::tqUnitsFactory::Units units, const SolidPointer& solid);
    tqToolPartDefinition(const tqToolPartDefinition&) = default;
    tqToolPartDefinition& operator=(const tqToolPartDefinition&) = default;

    /// Scales a copy of the solid, so that a solid shared with other parts stays as it is.
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    SolidPointer m_solid;
};

extern template class TQ_EXPORT tqToolPartDefinition<double>;
extern template class TQ_EXPORT tqToolPartDefinition<float>;

}  // namespace cadcam
