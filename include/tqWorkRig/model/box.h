// Box: an axis-aligned box geometry between two corners.
#pragma once

#include "cadcam/geometry/tqtpoint3d.h"
#include "misc/export.h"
#include "tqWorkRig/model/geometry.h"

namespace tqWorkRig {

/// A box given by its lower and upper corners; the corners are stored as given, in any order.
class TQ_EXPORT Box : public Geometry {
public:
    /// A box between the two corners.
    Box(const cadcam::tqTPoint3d<double>& lowerCorner, const cadcam::tqTPoint3d<double>& upperCorner,
        const tqstring& displayName);
    /// A box from (-1, -1, -1) to (1, 1, 1).
    explicit Box(const tqstring& displayName);
    Box(const Box& other);
    Box& operator=(const Box& other);
    ~Box() override;

    /// Calls visitor.Visit(const Box&).
    void AcceptVisitor(GeometryVisitor& visitor) const override;

    /// The same object, or Geometry equality and the six coordinates exactly equal.
    bool operator==(const Box& other) const;
    bool operator!=(const Box& other) const { return !(*this == other); }

    /// The lower corner.
    const cadcam::tqTPoint3d<double>& GetLowerCorner() const { return m_lowerCorner; }
    /// Stores the lower corner.
    void SetLowerCorner(const cadcam::tqTPoint3d<double>& lowerCorner) { m_lowerCorner = lowerCorner; }
    /// The upper corner.
    const cadcam::tqTPoint3d<double>& GetUpperCorner() const { return m_upperCorner; }
    /// Stores the upper corner.
    void SetUpperCorner(const cadcam::tqTPoint3d<double>& upperCorner) { m_upperCorner = upperCorner; }

private:
    cadcam::tqTPoint3d<double> m_lowerCorner;
    cadcam::tqTPoint3d<double> m_upperCorner;
};

}  // namespace tqWorkRig
