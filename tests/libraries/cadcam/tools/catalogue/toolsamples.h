// Sample tools of every class for the typed tests: a typical tool, tools that differ from it in one parameter,
// and the numbers each class holds.
#pragma once

#include <functional>
#include <map>
#include <typeindex>
#include <vector>

#include "cadcam/tools/parts/tqarbordefinition.h"
#include "cadcam/tools/parts/tqholderdefinition.h"
#include "cadcam/tools/tqtool.h"
#include "misc/tqautopointer.h"

namespace tqtest {

using ToolPointer = misc::tqAutoPointer<cadcam::tqTool>;

struct ToolSample {
    /// A valid tool of the class with typical metric parameters.
    ToolPointer tool;
    /// Tools of the same class, each differing from `tool` in exactly one parameter (holder, arbor and extender
    /// count as parameters).
    std::vector<ToolPointer> variants;
    /// Every number the class holds (lengths, angles, counts and enumerations), read through its getters.
    std::function<std::vector<double>(const cadcam::tqTool&)> parameters;
};

/// Samples keyed by the tool's class.
using SampleTable = std::map<std::type_index, ToolSample>;

/// Adds one sample to the table; T is the class of sample.tool.
template <class T>
void AddSample(SampleTable& table, ToolSample sample) {
    table[std::type_index(typeid(T))] = std::move(sample);
}

/// The samples of every class, built once.
const SampleTable& AllSamples();

// Each family's samples, in a file of its own.
void AddDrillingSamples(SampleTable& table);
void AddMillingSamples(SampleTable& table);
void AddBarrelSamples(SampleTable& table);
void AddTurningSamples(SampleTable& table);
void AddOtherSamples(SampleTable& table);
void AddGenericRevolvedSamples(SampleTable& table);

/// The default milling arbor and holder in the given units: revolved profiles without arcs.
misc::tqAutoPointer<cadcam::tqArborDefinition<double>> MillingArbor(
    measures::tqUnitsFactory::Units units = measures::tqUnitsFactory::Metric);
misc::tqAutoPointer<cadcam::tqHolderDefinition<double>> MillingHolder(
    measures::tqUnitsFactory::Units units = measures::tqUnitsFactory::Metric);
/// A second, different arbor and holder, for variants.
misc::tqAutoPointer<cadcam::tqArborDefinition<double>> OtherArbor();
misc::tqAutoPointer<cadcam::tqHolderDefinition<double>> OtherHolder();
/// The default metric turning holder (tqTurningSolidDefinition) for the given insert number.
misc::tqAutoPointer<cadcam::tqHolderDefinition<double>> TurningHolder(int insert = 0);
/// An arbor with an empty revolved solid, as turning tools carry.
misc::tqAutoPointer<cadcam::tqArborDefinition<double>> EmptyArbor();

}  // namespace tqtest
