// tq3dBoundingBox: growing by points and boxes, and placing by a matrix.
#include "cadcam/geometry/tq3dboundingbox.h"

#include <algorithm>

#include "cadcam/geometry/tqmatrix.h"

namespace cadcam {

tq3dBoundingBox::tq3dBoundingBox(const tqTPoint3d<double>& min, const tqTPoint3d<double>& max)
    : m_initialized(true), m_min(min), m_max(max) {}

void tq3dBoundingBox::Add(const tqTPoint3d<double>& point) {
    if (!m_initialized) {
        m_initialized = true;
        m_min = m_max = point;
        return;
    }
    m_min = {std::min(m_min.x, point.x), std::min(m_min.y, point.y), std::min(m_min.z, point.z)};
    m_max = {std::max(m_max.x, point.x), std::max(m_max.y, point.y), std::max(m_max.z, point.z)};
}

void tq3dBoundingBox::Add(const tq3dBoundingBox& other) {
    if (!other.m_initialized) return;
    Add(other.m_min);
    Add(other.m_max);
}

tq3dBoundingBox tq3dBoundingBox::Transformed(const tqMatrix<double, 4, 4>& matrix) const {
    if (!m_initialized) return *this;
    const double* m = matrix.GetData();
    const bool pureMove = m[0] == 1 && m[1] == 0 && m[2] == 0 && m[4] == 0 && m[5] == 1 && m[6] == 0 && m[8] == 0 &&
                          m[9] == 0 && m[10] == 1 && m[12] == 0 && m[13] == 0 && m[14] == 0 && m[15] == 1;
    if (pureMove) {
        // Adding the move to each corner keeps a Z extent exact when only Z moves.
        const tqTPoint3d<double> move(m[3], m[7], m[11]);
        return tq3dBoundingBox(m_min + move, m_max + move);
    }
    tq3dBoundingBox box;
    for (int corner = 0; corner < 8; ++corner) {
        const tqTPoint3d<double> p((corner & 1) ? m_max.x : m_min.x, (corner & 2) ? m_max.y : m_min.y,
                                   (corner & 4) ? m_max.z : m_min.z);
        box.Add(matrix * p);
    }
    return box;
}

}  // namespace cadcam
