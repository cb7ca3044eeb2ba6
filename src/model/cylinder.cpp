// Cylinder: construction, visiting and equality.
#include "tqWorkRig/model/cylinder.h"

#include "tqWorkRig/model/geometryvisitor.h"

namespace tqWorkRig {

Cylinder::Cylinder(const cadcam::tqTPoint3d<double>& startPoint, const cadcam::tqTPoint3d<double>& axis,
                   double diameter, double length, const tqstring& displayName)
    : Geometry(displayName), m_startPoint(startPoint), m_axis(axis), m_diameter(diameter), m_length(length) {}

Cylinder::Cylinder(const tqstring& displayName) : Cylinder({0.0, 0.0, 0.0}, {0.0, 0.0, 1.0}, 1.0, 1.0, displayName) {}

Cylinder::Cylinder(const Cylinder& other) = default;

Cylinder& Cylinder::operator=(const Cylinder& other) = default;

Cylinder::~Cylinder() = default;

void Cylinder::AcceptVisitor(GeometryVisitor& visitor) const { visitor.Visit(*this); }

bool Cylinder::operator==(const Cylinder& other) const {
    if (this == &other) return true;
    return Geometry::operator==(other) && m_startPoint == other.m_startPoint && m_axis == other.m_axis &&
           m_diameter == other.m_diameter && m_length == other.m_length;
}

}  // namespace tqWorkRig
