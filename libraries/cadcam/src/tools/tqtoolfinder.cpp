// tqToolFinder: the position of a tool's class in tqToolList and its name.
#include "cadcam/tools/tqtoolfinder.h"

#include <iterator>
#include <type_traits>

#include "cadcam/tools/tqalltools.h"

namespace cadcam {
namespace {

// In the order of tqToolList, checked below.
constexpr const char* kClassNames[] = {
    "tqContourTurningTool",
    "tqThreadTapTool",
    "tqPotGrinderTool",
    "tqSpeedShapeTool",
    "tqOpticDiamondTool",
    "tqGenericTool",
    "tqDiamondTurningTool",
    "tqGrooveTurningTool",
    "tqHexagonalTurningTool",
    "tqOctagonalTurningTool",
    "tqRoundTurningTool",
    "tqPentagonalTurningTool",
    "tqSquareTurningTool",
    "tqParallelogramTurningTool",
    "tqTriangleTurningTool",
    "tqChainSawTool",
    "tqGenericSawingTool",
    "tqWireTool",
    "tqGenericExtrudedTool",
    "tqGenericRevolvedTool",
    "tqConvexTipMill",
    "tqBarrelTaperMill",
    "tqBarrelTangentMillConicalShaft",
    "tqBarrelTangentMill",
    "tqBarrelLensMill",
    "tqBarrelDProfMill",
    "tqBarrelBarrSecMill",
    "tqBarrelAdvancedMill",
    "tqBarrelMill",
    "tqTapRH",
    "tqTapLH",
    "tqTaperMill",
    "tqSpotDrill",
    "tqSpherMill",
    "tqSlotMill",
    "tqReamer",
    "tqRadMill",
    "tqLolMill",
    "tqFaceMill",
    "tqEndMill",
    "tqDrill",
    "tqDoveMill",
    "tqCtrDrill",
    "tqCSink",
    "tqCntrBore",
    "tqChamferMill",
    "tqBullMill",
    "tqBoreBar"};
static_assert(std::size(kClassNames) == tqToolList::size, "one name per class of the list");

template <class T, class List>
struct IndexOf;
template <class T, class... Ts>
struct IndexOf<T, misc::tqTypeList<T, Ts...>> : std::integral_constant<std::size_t, 0> {};
template <class T, class U, class... Ts>
struct IndexOf<T, misc::tqTypeList<U, Ts...>>
    : std::integral_constant<std::size_t, 1 + IndexOf<T, misc::tqTypeList<Ts...>>::value> {};

}  // namespace

constexpr std::size_t tqToolFinder::kNotFound;

tqToolFinder::tqToolFinder() : m_index(kNotFound) {
    misc::detail_::KeepSlots<tqToolFinder>(static_cast<tqToolList*>(nullptr));
}

tqToolFinder::tqToolFinder(const tqTool& tool) : m_index(kNotFound) { tool.AcceptVisitor(*this); }

tqToolFinder::~tqToolFinder() = default;

template <class T>
void tqToolFinder::OnVisit(const T&) {
    m_index = IndexOf<T, tqToolList>::value;
}

void tqToolFinder::OnVisitBase(const tqTool&) { m_index = kNotFound; }

const char* tqToolFinder::GetClassName() const { return ClassNameAt(m_index); }

const char* tqToolFinder::ClassNameAt(std::size_t index) {
    return index < std::size(kClassNames) ? kClassNames[index] : "";
}

}  // namespace cadcam
