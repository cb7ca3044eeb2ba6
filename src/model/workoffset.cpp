// WorkOffset: construction and equality of name and matrix.
#include "tqWorkRig/model/workoffset.h"

namespace tqWorkRig {

WorkOffset::WorkOffset(const Matrix& matrix, const tqstring& name, const tqstring& displayName)
    : BaseObject(displayName), m_matrix(matrix), m_name(name) {}

WorkOffset::WorkOffset(const WorkOffset& other) = default;

WorkOffset& WorkOffset::operator=(const WorkOffset& other) = default;

WorkOffset::~WorkOffset() = default;

bool WorkOffset::operator==(const WorkOffset& other) const {
    if (this == &other) return true;
    // Offsets are identified by their own name: the display name and attributes do not take part.
    return m_name == other.m_name && m_matrix == other.m_matrix;
}

}  // namespace tqWorkRig
