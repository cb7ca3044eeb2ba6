// The sample table and the arbors and holders the samples are mounted in.
#include "toolsamples.h"

#include "cadcam/geometry/tq2dline.h"
#include "cadcam/tools/parts/tqdefaulttoolparts.h"
#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"

namespace tqtest {
namespace {

using cadcam::tq2dContour;
using cadcam::tq2dLine;
using cadcam::tqPoint2d;
using Units = measures::tqUnitsFactory::Units;

misc::tqAutoPointer<cadcam::tqSolidDefinition<double>> Polyline(Units units, std::vector<tqPoint2d> points) {
    tq2dContour<double> profile;
    for (std::size_t i = 1; i < points.size(); ++i) {
        profile.Append(
            misc::tqAutoPointer<cadcam::tq2dGeometry<double>>(new tq2dLine<double>(points[i - 1], points[i])));
    }
    return misc::tqAutoPointer<cadcam::tqSolidDefinition<double>>(
        new cadcam::tqRevolvedSolidDefinition<double>(units, profile));
}

}  // namespace

const SampleTable& AllSamples() {
    static const SampleTable table = [] {
        SampleTable t;
        AddDrillingSamples(t);
        AddMillingSamples(t);
        AddBarrelSamples(t);
        AddTurningSamples(t);
        AddOtherSamples(t);
        AddGenericRevolvedSamples(t);
        return t;
    }();
    return table;
}

misc::tqAutoPointer<cadcam::tqArborDefinition<double>> MillingArbor(Units units) {
    return cadcam::tqDefaultToolParts::MillingArbor(units);
}

misc::tqAutoPointer<cadcam::tqHolderDefinition<double>> MillingHolder(Units units) {
    return cadcam::tqDefaultToolParts::MillingHolder(units);
}

misc::tqAutoPointer<cadcam::tqArborDefinition<double>> OtherArbor() {
    auto solid = Polyline(measures::tqUnitsFactory::Metric, {{0, 0}, {10, 0}, {15, 20}, {15, 40}});
    return misc::tqAutoPointer<cadcam::tqArborDefinition<double>>(
        new cadcam::tqArborDefinition<double>(measures::tqUnitsFactory::Metric, solid));
}

misc::tqAutoPointer<cadcam::tqHolderDefinition<double>> OtherHolder() {
    auto solid = Polyline(measures::tqUnitsFactory::Metric, {{0, 0}, {20, 0}, {20, 10}, {30, 10}, {30, 60}});
    return misc::tqAutoPointer<cadcam::tqHolderDefinition<double>>(
        new cadcam::tqHolderDefinition<double>(measures::tqUnitsFactory::Metric, solid));
}

misc::tqAutoPointer<cadcam::tqHolderDefinition<double>> TurningHolder(int insert) {
    return cadcam::tqDefaultToolParts::TurningHolder(measures::tqUnitsFactory::Metric, insert);
}

misc::tqAutoPointer<cadcam::tqArborDefinition<double>> EmptyArbor() {
    return cadcam::tqDefaultToolParts::TurningArbor(measures::tqUnitsFactory::Metric);
}

}  // namespace tqtest
