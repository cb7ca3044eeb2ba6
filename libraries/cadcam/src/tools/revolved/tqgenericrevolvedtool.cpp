// tqGenericRevolvedTool: its parts, their diameter and the change of units.
#include "cadcam/tools/revolved/tqgenericrevolvedtool.h"

#include <algorithm>

#include "cadcam/geometry/tq2dboundingbox.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/parts/revolvedprofile.h"

namespace cadcam {

tqGenericRevolvedTool::tqGenericRevolvedTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                             const HolderPointer& holder, const PartList& parts)
    : tqRevolvedTool(units, arbor, holder), m_parts(parts) {}

tqGenericRevolvedTool::~tqGenericRevolvedTool() = default;

void tqGenericRevolvedTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

double tqGenericRevolvedTool::GetDiameter() const {
    double largestX = 0;
    for (const auto& part : m_parts.GetParts()) {
        if (part->GetSolid().IsNull()) continue;
        const tq2dContour<double>* profile = detail_::RevolvedProfileOf(*part->GetSolid());
        if (profile == nullptr) continue;
        // The box takes in the quarter-turn points of arcs, where a bulging arc reaches farthest out.
        const tq2dBoundingBox<double> box = tq2dBoundingBox<double>::Of(*profile);
        if (box.IsInitialised()) largestX = std::max(largestX, box.GetMax().x);
    }
    return 2 * largestX;
}

bool tqGenericRevolvedTool::operator==(const tqGenericRevolvedTool& other) const {
    return BaseEquals(other) && m_parts == other.m_parts;
}

void tqGenericRevolvedTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    PartList scaled;
    scaled.reserve(m_parts.GetCount());
    for (const auto& part : m_parts.GetParts()) {
        auto copy = part->Clone();
        measures::tqMeasurable::ScaleNested(*copy, units, factor);
        scaled.push_back(copy);
    }
    m_parts = tqToolPartsContainer<double>(scaled);
    tqRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
