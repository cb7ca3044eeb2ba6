// The sample table and the arbors and holders the samples are mounted in.
#include "toolsamples.h"

#include "cadcam/geometry/tq2dline.h"
#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"
#include "cadcam/tools/solids/tqturningsoliddefinition.h"

namespace tqtest {
namespace {

using cadcam::tq2dContour;
using cadcam::tq2dLine;
using cadcam::tqPoint2d;
using Units = measures::tqUnitsFactory::Units;

misc::tqAutoPointer<cadcam::tqSolidDefinition<double>> Polyline(Units units, std::vector<tqPoint2d> points) {
    tq2dContour<double> profile;
    for (std::size_t i = 1; i < points.size(); ++i) {
        profile.Append(misc::tqAutoPointer<cadcam::tq2dGeometry<double>>(new tq2dLine<double>(points[i - 1], points[i])));
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
    const bool metric = units == measures::tqUnitsFactory::Metric;
    auto solid = metric ? Polyline(units, {{0, 0}, {12, 0}, {17, 30}, {17, 45}})
                        : Polyline(units, {{0, 0}, {0.5, 0}, {0.7, 1.2}, {0.7, 1.75}});
    return misc::tqAutoPointer<cadcam::tqArborDefinition<double>>(new cadcam::tqArborDefinition<double>(units, solid));
}

misc::tqAutoPointer<cadcam::tqHolderDefinition<double>> MillingHolder(Units units) {
    const bool metric = units == measures::tqUnitsFactory::Metric;
    auto solid = metric ? Polyline(units, {{0, 0}, {25, 0}, {25, 15}, {32, 15}, {32, 35}, {22, 70}})
                        : Polyline(units, {{0, 0}, {1, 0}, {1, 0.6}, {1.25, 0.6}, {1.25, 1.4}, {0.875, 2.75}});
    return misc::tqAutoPointer<cadcam::tqHolderDefinition<double>>(new cadcam::tqHolderDefinition<double>(units, solid));
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
    using Turning = cadcam::tqTurningSolidDefinition<double>;
    misc::tqAutoPointer<cadcam::tqSolidDefinition<double>> solid(
        new Turning(measures::tqUnitsFactory::Metric, 125, Turning::H_RIGHT, Turning::SK_RECTANGULAR,
                    static_cast<Turning::Insert>(insert), Turning::GENERIC_TYPE_A, 25, 25, 32, 32, 0, 0, 0, 0, 0));
    return misc::tqAutoPointer<cadcam::tqHolderDefinition<double>>(
        new cadcam::tqHolderDefinition<double>(measures::tqUnitsFactory::Metric, solid));
}

misc::tqAutoPointer<cadcam::tqArborDefinition<double>> EmptyArbor() {
    misc::tqAutoPointer<cadcam::tqSolidDefinition<double>> solid(
        new cadcam::tqRevolvedSolidDefinition<double>(measures::tqUnitsFactory::Metric));
    return misc::tqAutoPointer<cadcam::tqArborDefinition<double>>(
        new cadcam::tqArborDefinition<double>(measures::tqUnitsFactory::Metric, solid));
}

}  // namespace tqtest
