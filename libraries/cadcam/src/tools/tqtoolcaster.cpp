// tqToolCaster: a visitor per family that answers with the tool cast to it, or null.
#include "cadcam/tools/tqtoolcaster.h"

#include <type_traits>

#include "cadcam/tools/tqalltools.h"
#include "cadcam/tools/tqtoollist.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "misc/tqtypedvisitor.h"

namespace cadcam {
namespace {

template <class Family>
class FamilyChecker : public misc::detail_::TypedVisitor<FamilyChecker<Family>, tqToolVisitor, tqTool, tqToolList> {
public:
    template <class T>
    void OnVisit(const T& tool) {
        if constexpr (std::is_base_of<Family, T>::value) m_result = &tool;
    }
    void OnVisitBase(const tqTool&) {}

    const Family* m_result = nullptr;
};

template <class Family>
const Family* CastTo(const tqTool& tool) {
    FamilyChecker<Family> checker;
    tool.AcceptVisitor(checker);
    return checker.m_result;
}

}  // namespace

const tqTypedRevolvedTool* tqToolCaster::ToTypedRevolvedTool(const tqTool& tool) {
    return CastTo<tqTypedRevolvedTool>(tool);
}
const tqTypedExtrudedTool* tqToolCaster::ToTypedExtrudedTool(const tqTool& tool) {
    return CastTo<tqTypedExtrudedTool>(tool);
}
const tqGenericRevolvedTool* tqToolCaster::ToGenericRevolvedTool(const tqTool& tool) {
    return CastTo<tqGenericRevolvedTool>(tool);
}
const tqGenericTool* tqToolCaster::ToGenericTool(const tqTool& tool) { return CastTo<tqGenericTool>(tool); }

}  // namespace cadcam
