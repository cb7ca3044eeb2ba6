// tq3dBoundingBox: an axis-aligned box in space, grown by points and boxes.
#pragma once

#include <cstddef>

#include "cadcam/geometry/tqtpoint3d.h"
#include "misc/export.h"

namespace cadcam {

template <class T, std::size_t R, std::size_t C>
class tqMatrix;

/// A value that starts uninitialised, holding nothing, and grows to take in what is added.
class TQ_EXPORT tq3dBoundingBox {
public:
    /// An uninitialised box.
    tq3dBoundingBox() = default;
    /// The box with these corners; min must not exceed max on any axis.
    tq3dBoundingBox(const tqTPoint3d<double>& min, const tqTPoint3d<double>& max);

    /// Whether anything has been added.
    bool IsInitialized() const { return m_initialized; }
    /// The lowest corner; the origin while uninitialised.
    const tqTPoint3d<double>& GetMin() const { return m_min; }
    /// The highest corner; the origin while uninitialised.
    const tqTPoint3d<double>& GetMax() const { return m_max; }
    /// The extent along Z; 0 while uninitialised.
    double GetHeight() const { return m_initialized ? m_max.z - m_min.z : 0.0; }

    /// Takes in a point.
    void Add(const tqTPoint3d<double>& point);
    /// Takes in another box; an uninitialised one adds nothing.
    void Add(const tq3dBoundingBox& other);
    /// The box of this box placed by a 4x4 matrix: a pure move shifts both corners exactly, anything else takes
    /// the box of the eight moved corners. An uninitialised box stays so.
    tq3dBoundingBox Transformed(const tqMatrix<double, 4, 4>& matrix) const;

    /// Exact: both uninitialised, or both initialised with equal corners.
    bool operator==(const tq3dBoundingBox& other) const {
        return m_initialized == other.m_initialized && m_min == other.m_min && m_max == other.m_max;
    }
    bool operator!=(const tq3dBoundingBox& other) const { return !(*this == other); }

private:
    bool m_initialized = false;
    tqTPoint3d<double> m_min;
    tqTPoint3d<double> m_max;
};

}  // namespace cadcam
