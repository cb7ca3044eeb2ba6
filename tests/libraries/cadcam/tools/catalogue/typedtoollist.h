// Every tool class as a GoogleTest type list, and the sample of a class.
#pragma once

#include <gtest/gtest.h>

#include "cadcam/tools/tqalltools.h"
#include "cadcam/tools/tqtoollist.h"
#include "toolsamples.h"

namespace tqtest {

template <class List>
struct ToGTestTypes;
template <class... Ts>
struct ToGTestTypes<misc::tqTypeList<Ts...>> {
    using type = ::testing::Types<Ts...>;
};

/// Every concrete tool class, in the order of the visitor's slots.
using AllToolClasses = ToGTestTypes<cadcam::tqToolList>::type;

/// The sample of class T; fails the test when the family has not registered one.
template <class T>
const ToolSample& SampleOf() {
    const auto found = AllSamples().find(std::type_index(typeid(T)));
    if (found == AllSamples().end()) throw std::logic_error("no sample for this class");
    return found->second;
}

}  // namespace tqtest
