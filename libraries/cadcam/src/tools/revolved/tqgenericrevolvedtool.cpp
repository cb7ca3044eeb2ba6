// tqGenericRevolvedTool: its parts, their diameter, their stacked profile and the change of units.
#include "cadcam/tools/revolved/tqgenericrevolvedtool.h"

#include <algorithm>

#include "cadcam/geometry/tq2dboundingbox.h"
#include "cadcam/tools/geometry/tqsoliddefinitionboundingbox.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/parts/revolvedprofile.h"
#include "tools/shape/headpath.h"

namespace cadcam {
namespace {

/// The parts' profiles stacked from the tip up: part k sits on the heights of the parts below it, and a line
/// joins each profile to the next. A flat first line of a part above the first, its bottom face, lies inside the
/// tool: the join goes to its end instead, as the typed tools join their shank.
tq2dContour<double> StackedProfile(const tqToolPartsContainer<double>& parts) {
    shape::HeadPath stack;
    bool started = false;
    double base = 0;
    for (const auto& part : parts.GetParts()) {
        if (part->GetSolid().IsNull()) continue;
        const tqSolidDefinition<double>& solid = *part->GetSolid();
        const tq2dContour<double>* profile = detail_::RevolvedProfileOf(solid);
        const shape::HeadPath lifted = profile != nullptr ? shape::PathOf(*profile, base) : shape::HeadPath();
        if (!lifted.items.empty()) {
            auto rest = lifted.items.begin();
            if (!started) {
                stack.start = lifted.start;
                started = true;
            } else if (!rest->arc && rest->end.y == lifted.start.y) {
                stack.LineTo(rest->end);
                ++rest;
            } else {
                stack.LineTo(lifted.start);
            }
            stack.items.insert(stack.items.end(), rest, lifted.items.end());
        }
        base += tqSolidDefinitionBoundingBox::Of(solid).GetHeight();
    }
    shape::Drop(stack);
    return shape::ToContour(stack);
}

}  // namespace

tqGenericRevolvedTool::tqGenericRevolvedTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                             const HolderPointer& holder, const PartList& parts)
    : tqRevolvedTool(units, arbor, holder), m_parts(parts), m_profile(StackedProfile(m_parts)) {}

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
    m_profile = StackedProfile(m_parts);
    tqRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
