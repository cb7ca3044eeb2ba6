// tqGenericExtrudedTool: a tool given by one solid as its cutting part.
#pragma once

#include "cadcam/tools/tqextrudedtool.h"

namespace cadcam {

template <class T>
class tqCuttingPartDefinition;
template <class T>
class tqSolidDefinition;

/// A tool given by one solid of any kind, which is its cutting part.
class TQ_EXPORT tqGenericExtrudedTool : public tqExtrudedTool {
public:
    using SolidPointer = misc::tqAutoPointer<tqSolidDefinition<double>>;
    using CuttingPartPointer = misc::tqAutoPointer<tqCuttingPartDefinition<double>>;

    /// Makes the solid a cutting part in the tool's units, which shares it. A null solid throws "Accessing TQ_NULL
    /// pointer"; a revolved solid whose profile breaks a cutting part rule throws that rule's tqcadcamException.
    tqGenericExtrudedTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                          const SolidPointer& solid);
    tqGenericExtrudedTool(const tqGenericExtrudedTool&) = default;
    tqGenericExtrudedTool& operator=(const tqGenericExtrudedTool&) = default;
    ~tqGenericExtrudedTool() override;

    /// The solid of the cutting part; never null.
    const SolidPointer& GetSolid() const;
    /// The cutting part that holds the solid; never null.
    const CuttingPartPointer& GetCuttingPart() const { return m_cuttingPart; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and an equal solid.
    bool operator==(const tqGenericExtrudedTool& other) const;
    bool operator!=(const tqGenericExtrudedTool& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    CuttingPartPointer m_cuttingPart;
};

}  // namespace cadcam
