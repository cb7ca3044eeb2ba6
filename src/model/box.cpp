// Box: construction, visiting and equality.
#include "tqWorkRig/model/box.h"

#include "tqWorkRig/model/geometryvisitor.h"

namespace tqWorkRig {

Box::Box(const cadcam::tqTPoint3d<double>& lowerCorner, const cadcam::tqTPoint3d<double>& upperCorner,
         const tqstring& displayName)
    : Geometry(displayName), m_lowerCorner(lowerCorner), m_upperCorner(upperCorner) {}

Box::Box(const tqstring& displayName) : Box({-1.0, -1.0, -1.0}, {1.0, 1.0, 1.0}, displayName) {}

Box::Box(const Box& other) = default;

Box& Box::operator=(const Box& other) = default;

Box::~Box() = default;

void Box::AcceptVisitor(GeometryVisitor& visitor) const { visitor.Visit(*this); }

bool Box::operator==(const Box& other) const {
    if (this == &other) return true;
    return Geometry::operator==(other) && m_lowerCorner == other.m_lowerCorner &&
           m_upperCorner == other.m_upperCorner;
}

}  // namespace tqWorkRig
