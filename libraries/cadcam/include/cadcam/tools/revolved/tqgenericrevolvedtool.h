// tqGenericRevolvedTool: a revolved tool given by an ordered list of tool parts.
#pragma once

#include "cadcam/geometry/tq2dcontour.h"
#include "cadcam/tools/parts/tqtoolpartscontainer.h"
#include "cadcam/tools/tqrevolvedtool.h"

namespace cadcam {

/// A revolved tool given by its cutting and non-cutting parts, stacked in list order from the tip up.
class TQ_EXPORT tqGenericRevolvedTool : public tqRevolvedTool {
public:
    using PartList = tqToolPartsContainer<double>::PartList;

    /// Shares the parts; a holder or arbor among them throws tqcadcamException 2184, a null one
    /// "Accessing TQ_NULL pointer". The parts checked their own profiles when they were made.
    tqGenericRevolvedTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                          const PartList& parts);
    tqGenericRevolvedTool(const tqGenericRevolvedTool&) = default;
    tqGenericRevolvedTool& operator=(const tqGenericRevolvedTool&) = default;
    ~tqGenericRevolvedTool() override;

    /// Twice the largest X over the revolved profiles of the parts, arc extremes included; 0 when there is none.
    double GetDiameter() const override;
    /// The parts' profiles stacked from the tip up, each lifted by the heights of the parts below it and joined
    /// to the previous one by a line (to the end of its bottom face, when it starts with a flat line); parts
    /// without a revolved profile add their height only.
    const tq2dContour<double>& GetProfile() const override { return m_profile; }
    /// The parts in their order.
    const tqToolPartsContainer<double>& GetParts() const { return m_parts; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and equal parts in the same order.
    bool operator==(const tqGenericRevolvedTool& other) const;
    bool operator!=(const tqGenericRevolvedTool& other) const { return !(*this == other); }

protected:
    /// Replaces every part by a scaled copy, so that parts shared with other tools stay as they are.
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    tqToolPartsContainer<double> m_parts;
    tq2dContour<double> m_profile;
};

}  // namespace cadcam
