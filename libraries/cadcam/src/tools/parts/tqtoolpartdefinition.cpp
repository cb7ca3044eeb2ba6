// tqToolPartDefinition: copies by role, equality by role, and scaling; instantiated for float and double.
#include "cadcam/tools/parts/tqtoolpartdefinition.h"

#include <type_traits>

#include "cadcam/tools/parts/tqalltoolpartdefinitions.h"
#include "cadcam/tools/tqcadcamexception.h"
#include "misc/tqtypedvisitor.h"

namespace cadcam {
namespace {

template <class T>
class RoleCloner : public misc::detail_::TypedVisitor<RoleCloner<T>, tqToolPartDefinitionVisitor<T>,
                                                      tqToolPartDefinition<T>, tqToolPartDefinitionList<T>> {
public:
    template <class U>
    void OnVisit(const U& part) {
        m_clone = misc::tqAutoPointer<tqToolPartDefinition<T>>(new U(part));
    }
    [[noreturn]] void OnVisitBase(const tqToolPartDefinition<T>&) { throw tqcadcamException(2184); }

    misc::tqAutoPointer<tqToolPartDefinition<T>> m_clone;
};

template <class T, class Left>
class RoleComparer : public misc::detail_::TypedVisitor<RoleComparer<T, Left>, tqToolPartDefinitionVisitor<T>,
                                                        tqToolPartDefinition<T>, tqToolPartDefinitionList<T>> {
public:
    template <class Right>
    void OnVisit(const Right&) {
        m_sameRole = std::is_same<Left, Right>::value;
    }
    [[noreturn]] void OnVisitBase(const tqToolPartDefinition<T>&) { throw tqcadcamException(2184); }

    bool m_sameRole = false;
};

template <class T>
class RoleDispatcher : public misc::detail_::TypedVisitor<RoleDispatcher<T>, tqToolPartDefinitionVisitor<T>,
                                                          tqToolPartDefinition<T>, tqToolPartDefinitionList<T>> {
public:
    explicit RoleDispatcher(const tqToolPartDefinition<T>& right) : m_right(right) {}
    template <class Left>
    void OnVisit(const Left&) {
        RoleComparer<T, Left> second;
        m_right.AcceptVisitor(second);
        m_sameRole = second.m_sameRole;
    }
    [[noreturn]] void OnVisitBase(const tqToolPartDefinition<T>&) { throw tqcadcamException(2184); }

    const tqToolPartDefinition<T>& m_right;
    bool m_sameRole = false;
};

}  // namespace

template <class T>
tqToolPartDefinition<T>::tqToolPartDefinition(measures::tqUnitsFactory::Units units, const SolidPointer& solid)
    : measures::tqMeasurable(units), m_solid(solid) {}

template <class T>
tqToolPartDefinition<T>::~tqToolPartDefinition() = default;

template <class T>
misc::tqAutoPointer<tqToolPartDefinition<T>> tqToolPartDefinition<T>::Clone() const {
    RoleCloner<T> cloner;
    AcceptVisitor(cloner);
    // The copy of the role shares the solid until here.
    if (m_solid.IsNotNull()) cloner.m_clone->m_solid = m_solid->Clone();
    return cloner.m_clone;
}

template <class T>
bool tqToolPartDefinition<T>::IsEqual(const tqToolPartDefinition& other) const {
    if (this == &other) return true;
    RoleDispatcher<T> roles(other);
    AcceptVisitor(roles);
    return roles.m_sameRole && GetUnits() == other.GetUnits() &&
           tqSolidDefinition<T>::AreEqual(m_solid, other.m_solid);
}

template <class T>
bool tqToolPartDefinition<T>::AreEqual(const misc::tqAutoPointer<tqToolPartDefinition<T>>& a,
                                       const misc::tqAutoPointer<tqToolPartDefinition<T>>& b) {
    if (a.IsNull() || b.IsNull()) return a.IsNull() && b.IsNull();
    return a->IsEqual(*b);
}

template <class T>
void tqToolPartDefinition<T>::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    if (m_solid.IsNull()) return;
    SolidPointer scaled = m_solid->Clone();
    measures::tqMeasurable::ScaleNested(*scaled, units, factor);
    m_solid = scaled;
}

template <class T>
tqToolPartDefinitionVisitor<T>::~tqToolPartDefinitionVisitor() = default;

template class tqToolPartDefinition<double>;
template class tqToolPartDefinition<float>;
template class tqToolPartDefinitionVisitor<double>;
template class tqToolPartDefinitionVisitor<float>;

}  // namespace cadcam
