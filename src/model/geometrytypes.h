// The closed set of concrete geometries, and the comparison of geometries held through the base.
#pragma once

#include "misc/tqtypelist.h"
#include "model/comparevisitor.h"
#include "tqWorkRig/model/box.h"
#include "tqWorkRig/model/cylinder.h"
#include "tqWorkRig/model/geometry.h"
#include "tqWorkRig/model/geometryvisitor.h"
#include "tqWorkRig/model/mesh.h"

namespace tqWorkRig {

/// Every concrete geometry, in the order of the GeometryVisitor slots. Comparers and cloners follow from it.
using GeometryTypes = misc::tqTypeList<Cylinder, Box, Mesh>;

/// Geometry equality through the base: GeometryCompareVisitor::Compare(left, right), also for pointers.
using GeometryCompareVisitor = detail_::CompareVisitor<GeometryVisitor, Geometry, GeometryTypes>;

extern template class detail_::CompareVisitor<GeometryVisitor, Geometry, GeometryTypes>;

}  // namespace tqWorkRig
