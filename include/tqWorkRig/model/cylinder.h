// Cylinder: a cylinder geometry given by start point, axis, diameter and length.
#pragma once

#include "cadcam/geometry/tqtpoint3d.h"
#include "misc/export.h"
#include "tqWorkRig/model/geometry.h"

namespace tqWorkRig {

/// A cylinder from a start point along an axis; values are stored as given, unchecked.
class TQ_EXPORT Cylinder : public Geometry {
public:
    /// A cylinder with the given start point, axis, diameter and length.
    Cylinder(const cadcam::tqTPoint3d<double>& startPoint, const cadcam::tqTPoint3d<double>& axis, double diameter,
             double length, const tqstring& displayName);
    /// Start (0, 0, 0), axis (0, 0, 1), diameter 1, length 1.
    explicit Cylinder(const tqstring& displayName);
    Cylinder(const Cylinder& other);
    Cylinder& operator=(const Cylinder& other);
    ~Cylinder() override;

    /// Calls visitor.Visit(const Cylinder&).
    void AcceptVisitor(GeometryVisitor& visitor) const override;

    /// The same object, or Geometry equality, then start point, axis, diameter and length exactly equal.
    bool operator==(const Cylinder& other) const;
    bool operator!=(const Cylinder& other) const { return !(*this == other); }

    /// The centre of the start face.
    const cadcam::tqTPoint3d<double>& GetStartPoint() const { return m_startPoint; }
    /// Stores the start point.
    void SetStartPoint(const cadcam::tqTPoint3d<double>& startPoint) { m_startPoint = startPoint; }
    /// The axis direction.
    const cadcam::tqTPoint3d<double>& GetAxis() const { return m_axis; }
    /// Stores the axis.
    void SetAxis(const cadcam::tqTPoint3d<double>& axis) { m_axis = axis; }
    /// The diameter.
    double GetDiameter() const { return m_diameter; }
    /// Stores the diameter.
    void SetDiameter(double diameter) { m_diameter = diameter; }
    /// The length along the axis.
    double GetLength() const { return m_length; }
    /// Stores the length.
    void SetLength(double length) { m_length = length; }

private:
    cadcam::tqTPoint3d<double> m_startPoint;
    cadcam::tqTPoint3d<double> m_axis;
    double m_diameter;
    double m_length;
};

}  // namespace tqWorkRig
