// tqWireTool: an erosion wire.
#pragma once

#include "cadcam/tools/tqtool.h"

namespace cadcam {

/// An erosion wire: a cylinder of the wire diameter from Z = 0 up to the wire length, or without end.
class TQ_EXPORT tqWireTool : public tqTool {
public:
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

    void AcceptBranchVisitor(tqToolBranchVisitor& visitor) const override;
    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqWireTool& other) const;
    bool operator!=(const tqWireTool& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    double m_wireDiameter;
    double m_wireLength;
    bool m_hasInfiniteLength;
};

}  // namespace cadcam
