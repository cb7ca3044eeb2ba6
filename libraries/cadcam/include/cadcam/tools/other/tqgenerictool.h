// tqGenericTool: a tool given by positioned parts: holder, arbor, non-cutting and cutting groups.
#pragma once

#include <vector>

#include "cadcam/geometry/tqmatrix.h"
#include "cadcam/tools/tqtool.h"

namespace cadcam {

template <class T>
class tqToolPartDefinition;

/// A tool given by positioned parts in four groups: holder, arbor, non-cutting and cutting. Each part is placed
/// by an isometric matrix. The holder and arbor pointers of tqTool stay null: a holder or arbor is a group here.
class TQ_EXPORT tqGenericTool : public tqTool {
public:
    /// A part and the matrix that places it in the tool; both shared, neither null.
    struct PositionedPart {
        misc::tqAutoPointer<tqToolPartDefinition<double>> m_part;
        misc::tqAutoPointer<tqMatrix<double, 4, 4>> m_matrix;
    };
    using Group = std::vector<PositionedPart>;

    /// Metric, with four empty groups.
    tqGenericTool();
    /// A null part or matrix throws "Accessing TQ_NULL pointer"; a matrix that is not isometric (the 3x3 block
    /// orthonormal within 1e-9, last row exactly 0 0 0 1, a finite translation) throws tqException "Non isometric
    /// matrix passed to tqGenericTool".
    tqGenericTool(measures::tqUnitsFactory::Units units, const Group& holderGroup, const Group& arborGroup,
                  const Group& nonCuttingGroup, const Group& cuttingGroup);
    tqGenericTool(const tqGenericTool&) = default;
    tqGenericTool& operator=(const tqGenericTool&) = default;
    ~tqGenericTool() override;

    /// The cutting parts with their matrices (the cutting group).
    virtual const Group& GetCuttingParts() const;
    /// The non-cutting parts with their matrices (the non-cutting group).
    virtual const Group& GetNonCuttingParts() const;

    const Group& GetHolderGroup() const { return m_holderGroup; }
    const Group& GetArborGroup() const { return m_arborGroup; }
    const Group& GetNonCuttingGroup() const { return m_nonCuttingGroup; }
    const Group& GetCuttingGroup() const { return m_cuttingGroup; }

    void AcceptBranchVisitor(tqToolBranchVisitor& visitor) const override;
    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units and, group by group in order, equal parts (IsEqual) and equal matrices.
    bool operator==(const tqGenericTool& other) const;
    bool operator!=(const tqGenericTool& other) const { return !(*this == other); }

protected:
    /// Scales copies of the parts and the matrices' translations; rotations stay.
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    Group m_holderGroup;
    Group m_arborGroup;
    Group m_nonCuttingGroup;
    Group m_cuttingGroup;
};

}  // namespace cadcam
