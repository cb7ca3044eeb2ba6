// tqTool: the abstract root of the catalogue's cutting tools.
#pragma once

#include <optional>

#include "measures/tqmeasurable.h"
#include "misc/export.h"
#include "misc/tqautopointer.h"

namespace cadcam {

template <class T>
class tqArborDefinition;
template <class T>
class tqHolderDefinition;
class tqToolVisitor;
class tqToolBranchVisitor;

/// A cutting tool: its units, its holder and its arbor, and the parameters of its class. A tool is checked
/// when it is built and never changes afterwards, except for a change of units. Behaviour that differs by class
/// is a visitor (tqToolVisitor, or tqToolBranchVisitor by family).
class TQ_EXPORT tqTool : public measures::tqMeasurable {
public:
    using ArborPointer = misc::tqAutoPointer<tqArborDefinition<double>>;
    using HolderPointer = misc::tqAutoPointer<tqHolderDefinition<double>>;
    /// Bits that select part kinds: 1 the cutting part, 2 the non-cutting part, combined by bitwise or.
    using PartHeightSelector = unsigned int;
    static constexpr PartHeightSelector kCuttingPart = 1;
    static constexpr PartHeightSelector kNonCuttingPart = 2;

    ~tqTool() override;

    /// The Z extent of the selected part kinds in the tool (tqToolBoundingBox); absent when they have no extent.
    virtual std::optional<double> PartHeightOf(PartHeightSelector selector) const;
    /// Calls the visitor's Visit for this tool's family.
    virtual void AcceptBranchVisitor(tqToolBranchVisitor& visitor) const = 0;
    /// Calls the visitor's Visit for this tool's own class.
    virtual void AcceptVisitor(tqToolVisitor& visitor) const = 0;

    /// The holder the tool is mounted in; null for none.
    const HolderPointer& GetHolder() const { return m_holder; }
    /// The arbor between tool and holder; null for none.
    const ArborPointer& GetArbor() const { return m_arbor; }

    /// A copy of the tool's own class (tqToolCloner); it shares the holder and arbor definitions.
    misc::tqAutoPointer<tqTool> Clone() const;
    /// Exact equality across classes (tqToolComparator): the same class and equal parameters.
    bool IsEqual(const tqTool& other) const;

protected:
    tqTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder);
    tqTool(const tqTool&) = default;
    tqTool& operator=(const tqTool&) = default;

    /// The units and the holder and arbor definitions, compared by value.
    bool BaseEquals(const tqTool& other) const;
    /// Scales copies of the holder and arbor, which other tools may share. Every override scales its own
    /// lengths and then calls its base's Scale.
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    HolderPointer m_holder;
    ArborPointer m_arbor;
};

}  // namespace cadcam
