// WorkOffset: a named work coordinate matrix such as G54.
#pragma once

#include "cadcam/geometry/tqmatrix.h"
#include "misc/export.h"
#include "tqWorkRig/model/baseobject.h"

namespace tqWorkRig {

/// A work coordinate offset: a matrix and a name apart from the display name.
class TQ_EXPORT WorkOffset : public BaseObject {
public:
    using Matrix = cadcam::tqMatrix<double, 4, 4>;

    /// Stores the matrix, the name and the display name.
    WorkOffset(const Matrix& matrix, const tqstring& name, const tqstring& displayName);
    WorkOffset(const WorkOffset& other);
    WorkOffset& operator=(const WorkOffset& other);
    ~WorkOffset() override;

    /// The same object, or equal names and the sixteen elements exactly equal; display name and attributes are
    /// not compared.
    bool operator==(const WorkOffset& other) const;
    bool operator!=(const WorkOffset& other) const { return !(*this == other); }

    /// The work coordinate matrix.
    const Matrix& GetMatrix() const { return m_matrix; }
    /// The work coordinate matrix.
    Matrix& GetMatrix() { return m_matrix; }
    /// Replaces the matrix.
    void SetMatrix(const Matrix& matrix) { m_matrix = matrix; }
    /// The offset's name, such as "G54".
    const tqstring& GetName() const { return m_name; }
    /// Replaces the name.
    void SetName(const tqstring& name) { m_name = name; }

private:
    Matrix m_matrix;
    tqstring m_name;
};

}  // namespace tqWorkRig
