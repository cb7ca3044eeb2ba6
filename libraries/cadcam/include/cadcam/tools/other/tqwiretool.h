// tqWireTool: an erosion wire.
#pragma once

#include "cadcam/tools/tqtool.h"

namespace cadcam {

template <class T>
class tqCuttingPartDefinition;

/// An erosion wire: a cylinder of the wire diameter from Z = 0 up to the wire length, or without end.
class TQ_EXPORT tqWireTool : public tqTool {
public:
    using CuttingPartPointer = misc::tqAutoPointer<tqCuttingPartDefinition<double>>;

    /// Takes any values: a wire has no rules.
    tqWireTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
               double wireDiameter, double wireLength, bool hasInfiniteLength);
    tqWireTool(const tqWireTool&) = default;
    tqWireTool& operator=(const tqWireTool&) = default;
    ~tqWireTool() override;

    double GetWireDiameter() const { return m_wireDiameter; }
    /// The length of the wire; not used when the length is infinite.
    double GetWireLength() const { return m_wireLength; }
    /// Whether the wire has no end, so that it has no box or mesh.
    bool HasInfiniteLength() const { return m_hasInfiniteLength; }

    /// The wire as a cutting part holding a tqWireSolidDefinition of the same sizes. Never null once the tool
    /// is built.
    const CuttingPartPointer& GetCuttingPart() const { return m_cuttingPart; }

    void AcceptBranchVisitor(tqToolBranchVisitor& visitor) const override;
    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqWireTool& other) const;
    bool operator!=(const tqWireTool& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Makes the cutting part from the parameters, in the given units.
    void BuildCuttingPart(measures::tqUnitsFactory::Units units);

    double m_wireDiameter;
    double m_wireLength;
    bool m_hasInfiniteLength;
    CuttingPartPointer m_cuttingPart;
};

}  // namespace cadcam
