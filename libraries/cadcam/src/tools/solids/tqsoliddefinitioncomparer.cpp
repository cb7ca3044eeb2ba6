// tqSolidDefinitionComparer: double dispatch over the concrete solids; instantiated for float and double.
#include "cadcam/tools/solids/tqsoliddefinitioncomparer.h"

#include <type_traits>

#include "cadcam/tools/solids/tqallsoliddefinitions.h"
#include "cadcam/tools/tqcadcamexception.h"
#include "misc/tqtypedvisitor.h"

namespace cadcam {
namespace {

/// Second dispatch: learns the right operand's class and compares only within one class.
template <class T, class Left>
class RightSide : public misc::detail_::TypedVisitor<RightSide<T, Left>, tqSolidDefinitionVisitorGetter<T>,
                                                     tqSolidDefinition<T>, tqSolidDefinitionList<T>> {
public:
    RightSide(const Left& left, bool& result) : m_left(left), m_result(result) {}
    template <class Right>
    void OnVisit(const Right& right) {
        if constexpr (std::is_same<Left, Right>::value) {
            m_result = m_left == right;
        } else {
            m_result = false;
        }
    }
    [[noreturn]] void OnVisitBase(const tqSolidDefinition<T>&) { throw tqcadcamException(2183); }

private:
    const Left& m_left;
    bool& m_result;
};

}  // namespace

template <class T>
tqSolidDefinitionComparer<T>::~tqSolidDefinitionComparer() = default;

template <class T>
bool tqSolidDefinitionComparer<T>::Compare(const tqSolidDefinition<T>& left, const tqSolidDefinition<T>& right) {
    tqSolidDefinitionComparer comparer(right);
    left.AcceptVisitor(comparer);
    return comparer.m_result;
}

template <class T>
template <class U>
void tqSolidDefinitionComparer<T>::CompareWith(const U& left) {
    RightSide<T, U> second(left, m_result);
    m_right.AcceptVisitor(second);
}

template <class T>
void tqSolidDefinitionComparer<T>::Visit(const tqWireSolidDefinition<T>& s) { CompareWith(s); }
template <class T>
void tqSolidDefinitionComparer<T>::Visit(const tqContourTurningSolidDefinition<T>& s) { CompareWith(s); }
template <class T>
void tqSolidDefinitionComparer<T>::Visit(const tqTurningSolidDefinition<T>& s) { CompareWith(s); }
template <class T>
void tqSolidDefinitionComparer<T>::Visit(const tqMeshSolidDefinition<T>& s) { CompareWith(s); }
template <class T>
void tqSolidDefinitionComparer<T>::Visit(const tqExtrudedSolidDefinition<T>& s) { CompareWith(s); }
template <class T>
void tqSolidDefinitionComparer<T>::Visit(const tqRevolvedSolidDefinition<T>& s) { CompareWith(s); }
template <class T>
void tqSolidDefinitionComparer<T>::Visit(const tqSolidDefinition<T>&) {
    throw tqcadcamException(2183);
}

template class tqSolidDefinitionComparer<double>;
template class tqSolidDefinitionComparer<float>;

}  // namespace cadcam
