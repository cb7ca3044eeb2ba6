// tqTool: holder and arbor, copies, equality and the change of units.
#include "cadcam/tools/tqtool.h"

#include "cadcam/tools/geometry/tqtoolboundingbox.h"
#include "cadcam/tools/parts/tqarbordefinition.h"
#include "cadcam/tools/parts/tqholderdefinition.h"
#include "cadcam/tools/tqtoolcloner.h"
#include "cadcam/tools/tqtoolcomparator.h"

namespace cadcam {
namespace {

template <class Part>
bool SamePart(const misc::tqAutoPointer<Part>& a, const misc::tqAutoPointer<Part>& b) {
    if (a.IsNull() || b.IsNull()) return a.IsNull() && b.IsNull();
    return a->IsEqual(*b);
}

// Definitions may be shared by other tools: a change of units works on a copy.
template <class Part>
void ScalePart(misc::tqAutoPointer<Part>& part, measures::tqUnitsFactory::Units units, const double& factor,
               void (*scaleNested)(measures::tqMeasurable&, measures::tqUnitsFactory::Units, const double&)) {
    if (part.IsNull()) return;
    misc::tqAutoPointer<Part> copy(new Part(*part));
    scaleNested(*copy, units, factor);
    part = copy;
}

}  // namespace

constexpr tqTool::PartHeightSelector tqTool::kCuttingPart;
constexpr tqTool::PartHeightSelector tqTool::kNonCuttingPart;

tqTool::tqTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder)
    : measures::tqMeasurable(units), m_holder(holder), m_arbor(arbor) {}

tqTool::~tqTool() = default;

std::optional<double> tqTool::PartHeightOf(PartHeightSelector selector) const {
    const unsigned mask = selector & (kCuttingPart | kNonCuttingPart);
    if (!tqToolBoundingBox::Of(*this, mask).IsInitialized()) return std::nullopt;
    return tqToolBoundingBox::HeightOf(*this, mask);
}

misc::tqAutoPointer<tqTool> tqTool::Clone() const { return tqToolCloner::Clone(*this); }

bool tqTool::IsEqual(const tqTool& other) const { return tqToolComparator::Compare(*this, other); }

bool tqTool::BaseEquals(const tqTool& other) const {
    return GetUnits() == other.GetUnits() && SamePart(m_holder, other.m_holder) && SamePart(m_arbor, other.m_arbor);
}

void tqTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    ScalePart(m_holder, units, factor, &measures::tqMeasurable::ScaleNested);
    ScalePart(m_arbor, units, factor, &measures::tqMeasurable::ScaleNested);
}

}  // namespace cadcam
