// tqGenericTool: its four groups of positioned parts, the isometry check, equality and scaling.
#include "cadcam/tools/other/tqgenerictool.h"

#include <cmath>

#include "cadcam/tools/parts/tqtoolpartdefinition.h"
#include "cadcam/tools/tqtoolbranchvisitor.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "misc/tqexception.h"

namespace cadcam {
namespace {

using Matrix = tqMatrix<double, 4, 4>;

/// MᵀM = I within 1e-9 on the 3x3 block, last row exactly (0, 0, 0, 1), and a finite move.
bool IsIsometric(const Matrix& m) {
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = 0; j < 3; ++j) {
            double dot = 0;
            for (std::size_t k = 0; k < 3; ++k) dot += m(k, i) * m(k, j);
            if (!(std::fabs(dot - (i == j ? 1.0 : 0.0)) <= 1e-9)) return false;
        }
        if (!std::isfinite(m(i, 3))) return false;
    }
    return m(3, 0) == 0 && m(3, 1) == 0 && m(3, 2) == 0 && m(3, 3) == 1;
}

void CheckGroup(const tqGenericTool::Group& group) {
    for (const tqGenericTool::PositionedPart& element : group) {
        if (element.m_part.IsNull() || element.m_matrix.IsNull()) misc::detail_::ThrowNullPointer();
        if (!IsIsometric(*element.m_matrix)) misc::ThrowFailure(u"Non isometric matrix passed to tqGenericTool");
    }
}

bool SameGroup(const tqGenericTool::Group& a, const tqGenericTool::Group& b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (!tqToolPartDefinition<double>::AreEqual(a[i].m_part, b[i].m_part)) return false;
        if (!(*a[i].m_matrix == *b[i].m_matrix)) return false;
    }
    return true;
}

}  // namespace

tqGenericTool::tqGenericTool() : tqTool(measures::tqUnitsFactory::Metric, ArborPointer(), HolderPointer()) {}

tqGenericTool::tqGenericTool(measures::tqUnitsFactory::Units units, const Group& holderGroup, const Group& arborGroup,
                             const Group& nonCuttingGroup, const Group& cuttingGroup)
    : tqTool(units, ArborPointer(), HolderPointer()),
      m_holderGroup(holderGroup),
      m_arborGroup(arborGroup),
      m_nonCuttingGroup(nonCuttingGroup),
      m_cuttingGroup(cuttingGroup) {
    CheckGroup(holderGroup);
    CheckGroup(arborGroup);
    CheckGroup(nonCuttingGroup);
    CheckGroup(cuttingGroup);
}

tqGenericTool::~tqGenericTool() = default;

const tqGenericTool::Group& tqGenericTool::GetCuttingParts() const { return m_cuttingGroup; }

const tqGenericTool::Group& tqGenericTool::GetNonCuttingParts() const { return m_nonCuttingGroup; }

void tqGenericTool::AcceptBranchVisitor(tqToolBranchVisitor& visitor) const { visitor.Visit(*this); }

void tqGenericTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqGenericTool::operator==(const tqGenericTool& other) const {
    return BaseEquals(other) && SameGroup(m_holderGroup, other.m_holderGroup) &&
           SameGroup(m_arborGroup, other.m_arborGroup) && SameGroup(m_nonCuttingGroup, other.m_nonCuttingGroup) &&
           SameGroup(m_cuttingGroup, other.m_cuttingGroup);
}

void tqGenericTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    // Parts and matrices may be shared with other tools: each element gets scaled copies.
    for (Group* group : {&m_holderGroup, &m_arborGroup, &m_nonCuttingGroup, &m_cuttingGroup}) {
        for (PositionedPart& element : *group) {
            misc::tqAutoPointer<tqToolPartDefinition<double>> part = element.m_part->Clone();
            ScaleNested(*part, units, factor);
            misc::tqAutoPointer<Matrix> matrix(new Matrix(*element.m_matrix));
            for (std::size_t row = 0; row < 3; ++row) (*matrix)(row, 3) *= factor;
            element = PositionedPart{part, matrix};
        }
    }
    tqTool::Scale(units, factor);
}

}  // namespace cadcam
