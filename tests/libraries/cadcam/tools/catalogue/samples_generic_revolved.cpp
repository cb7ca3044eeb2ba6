// Samples of the generic revolved tools.
#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/tools/parts/tqcuttingpartdefinition.h"
#include "cadcam/tools/parts/tqnoncuttingpartdefinition.h"
#include "cadcam/tools/revolved/tqgenericrevolvedtool.h"
#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"
#include "toolsamples.h"

namespace tqtest {
namespace {

using cadcam::tqGenericRevolvedTool;
using Item = misc::tqAutoPointer<cadcam::tq2dGeometry<double>>;
using Part = misc::tqAutoPointer<cadcam::tqToolPartDefinition<double>>;
constexpr auto kMetric = measures::tqUnitsFactory::Metric;

/// Appends a line or a counterclockwise arc to profile.
void Line(cadcam::tq2dContour<double>& profile, cadcam::tqPoint2d from, cadcam::tqPoint2d to) {
    profile.Append(Item(new cadcam::tq2dLine<double>(from, to)));
}
void Arc(cadcam::tq2dContour<double>& profile, cadcam::tqPoint2d from, cadcam::tqPoint2d to, cadcam::tqPoint2d centre) {
    profile.Append(Item(new cadcam::tq2dArc<double>(from, to, centre, cadcam::tqArcDirection::Counterclockwise)));
}

misc::tqAutoPointer<cadcam::tqSolidDefinition<double>> Solid(const cadcam::tq2dContour<double>& profile) {
    return misc::tqAutoPointer<cadcam::tqSolidDefinition<double>>(
        new cadcam::tqRevolvedSolidDefinition<double>(kMetric, profile));
}

/// A bull-nosed head: S(0,0) L(r - rc, 0) A+(r, rc; r - rc, rc) L(r, length).
Part Cutting(double r = 5, double length = 20, double rc = 1) {
    cadcam::tq2dContour<double> profile;
    Line(profile, {0, 0}, {r - rc, 0});
    Arc(profile, {r - rc, 0}, {r, rc}, {r - rc, rc});
    Line(profile, {r, rc}, {r, length});
    return Part(new cadcam::tqCuttingPartDefinition<double>(kMetric, Solid(profile)));
}

/// A shank widening from 5 to its radius: S(0,0) L(5,0) L(shank,5) L(shank,40).
Part NonCutting(double shank = 6) {
    cadcam::tq2dContour<double> profile;
    Line(profile, {0, 0}, {5, 0});
    Line(profile, {5, 0}, {shank, 5});
    Line(profile, {shank, 5}, {shank, 40});
    return Part(new cadcam::tqNonCuttingPartDefinition<double>(kMetric, Solid(profile)));
}

ToolPointer Make(tqGenericRevolvedTool::PartList parts, const cadcam::tqTool::ArborPointer& arbor = MillingArbor(),
                 const cadcam::tqTool::HolderPointer& holder = MillingHolder()) {
    return ToolPointer(new tqGenericRevolvedTool(kMetric, arbor, holder, parts));
}

/// The diameter, then every coordinate, radius and sweep of every part's profile.
std::vector<double> Parameters(const cadcam::tqTool& tool) {
    const auto& generic = static_cast<const tqGenericRevolvedTool&>(tool);
    std::vector<double> numbers = {generic.GetDiameter(), static_cast<double>(generic.GetParts().GetCount())};
    for (const auto& part : generic.GetParts().GetParts()) {
        const auto& solid = static_cast<const cadcam::tqRevolvedSolidDefinition<double>&>(*part->GetSolid());
        for (const auto& item : solid.GetProfile()) {
            if (const auto line = item.DynamicCast<cadcam::tq2dLine<double>>(); line.IsNotNull()) {
                numbers.insert(numbers.end(),
                               {line->GetStart().x, line->GetStart().y, line->GetEnd().x, line->GetEnd().y});
            } else {
                const auto arc = item.StaticCast<cadcam::tq2dArc<double>>();
                numbers.insert(numbers.end(),
                               {arc->GetStart().x, arc->GetStart().y, arc->GetEnd().x, arc->GetEnd().y,
                                arc->GetCentre().x, arc->GetCentre().y, arc->GetRadius(), arc->GetSweep()});
            }
        }
    }
    return numbers;
}

}  // namespace

void AddGenericRevolvedSamples(SampleTable& table) {
    AddSample<tqGenericRevolvedTool>(table, {Make({Cutting(), NonCutting()}),
                                             {
                                                 Make({Cutting(), NonCutting()}, OtherArbor()),
                                                 Make({Cutting(), NonCutting()}, MillingArbor(), OtherHolder()),
                                                 Make({Cutting(6), NonCutting()}),
                                                 Make({Cutting(5, 25), NonCutting()}),
                                                 Make({Cutting(5, 20, 2), NonCutting()}),
                                                 Make({Cutting(), NonCutting(7)}),
                                                 Make({Cutting()}),
                                                 Make({NonCutting(), Cutting()}),
                                             },
                                             Parameters});
}

}  // namespace tqtest
