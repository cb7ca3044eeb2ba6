// tqToolTypeFinder: typed or generic, and the family, of every class of tqToolList.
#include "cadcam/tools/tqtooltypefinder.h"

#include <type_traits>

#include "cadcam/tools/tqalltools.h"

namespace cadcam {
namespace {

template <class T>
constexpr bool kIsGeneric = std::is_same<T, tqGenericTool>::value || std::is_same<T, tqGenericRevolvedTool>::value ||
                            std::is_same<T, tqGenericExtrudedTool>::value ||
                            std::is_same<T, tqGenericSawingTool>::value;

template <class T>
constexpr tqToolTypes::ToolFamily FamilyOf() {
    if constexpr (std::is_base_of<tqRevolvedTool, T>::value) return tqToolTypes::TF_REVOLVED;
    else if constexpr (std::is_base_of<tqExtrudedTool, T>::value) return tqToolTypes::TF_EXTRUDED;
    else if constexpr (std::is_base_of<tqSawingTool, T>::value) return tqToolTypes::TF_SAWING;
    else if constexpr (std::is_same<T, tqWireTool>::value) return tqToolTypes::TF_WIRE;
    else if constexpr (std::is_same<T, tqGenericTool>::value) return tqToolTypes::TF_GENERIC;
    else if constexpr (std::is_same<T, tqOpticDiamondTool>::value) return tqToolTypes::TF_OPTIC_DIAMOND;
    else return tqToolTypes::TF_SPEED_SHAPE;
}

}  // namespace

tqToolTypeFinder::tqToolTypeFinder(const tqTool& tool)
    : m_representation(tqToolTypes::TR_TYPED), m_family(tqToolTypes::TF_REVOLVED) {
    misc::detail_::KeepSlots<tqToolTypeFinder>(static_cast<tqToolList*>(nullptr));
    tool.AcceptVisitor(*this);
}

tqToolTypeFinder::~tqToolTypeFinder() = default;

template <class T>
void tqToolTypeFinder::OnVisit(const T&) {
    m_representation = kIsGeneric<T> ? tqToolTypes::TR_GENERIC : tqToolTypes::TR_TYPED;
    m_family = FamilyOf<T>();
}

void tqToolTypeFinder::OnVisitBase(const tqTool&) { m_representation = tqToolTypes::TR_TYPED; }

}  // namespace cadcam
