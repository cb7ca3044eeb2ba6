// tqTypedExtrudedTool: the insert thickness and the checks of the holder every insert needs.
#include "cadcam/tools/tqtypedextrudedtool.h"

#include <type_traits>

#include "cadcam/geometry/tq2dcontour.h"
#include "cadcam/tools/parts/tqcuttingpartdefinition.h"
#include "cadcam/tools/parts/tqholderdefinition.h"
#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"
#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "misc/tqtypedvisitor.h"
#include "tools/shape/insertshapes.h"

namespace cadcam {
namespace {

/// Whether a solid is one of the turning solids (tqTypedExtrudedSolidDefinition).
class TurningSolidDetector
    : public misc::detail_::TypedVisitor<TurningSolidDetector, tqSolidDefinitionVisitorGetter<double>,
                                         tqSolidDefinition<double>, tqSolidDefinitionList<double>> {
public:
    template <class U>
    void OnVisit(const U&) {
        m_isTurning = std::is_same<U, tqTurningSolidDefinition<double>>::value ||
                      std::is_same<U, tqContourTurningSolidDefinition<double>>::value;
    }
    void OnVisitBase(const tqSolidDefinition<double>&) { m_isTurning = false; }

    bool m_isTurning = false;
};

bool IsTurningHolder(const tqTool::HolderPointer& holder) {
    if (holder.IsNull() || holder->GetSolid().IsNull()) return false;
    TurningSolidDetector detector;
    holder->GetSolid()->AcceptVisitor(detector);
    return detector.m_isTurning;
}

}  // namespace

tqTypedExtrudedTool::tqTypedExtrudedTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                         const HolderPointer& holder, double insertThickness)
    : tqExtrudedTool(units, arbor, holder), m_insertThickness(insertThickness) {
    if (!IsTurningHolder(holder)) throw tqcadcamException(2337);
    if (!(insertThickness > 0)) throw tqcadcamException(2338);
}

tqTypedExtrudedTool::~tqTypedExtrudedTool() = default;

void tqTypedExtrudedTool::AcceptVisitor(tqToolVisitor& visitor) const {
    visitor.Visit(static_cast<const tqTool&>(*this));
}

bool tqTypedExtrudedTool::BaseEquals(const tqTypedExtrudedTool& other) const {
    return tqTool::BaseEquals(other) && m_insertThickness == other.m_insertThickness;
}

void tqTypedExtrudedTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_insertThickness *= factor;
    tqTool::Scale(units, factor);
    // Every class has scaled its own lengths before calling here: the insert is made again from them.
    BuildCuttingPart(units);
}

void tqTypedExtrudedTool::BuildCuttingPart(measures::tqUnitsFactory::Units units) {
    // An insert too small or too slender to compute has a part without contour.
    m_cuttingPart = shape::TurningPlanePart(units, {MakeInsertContour()}, 0, m_insertThickness);
}

}  // namespace cadcam
