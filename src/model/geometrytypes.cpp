// The geometry comparer, instantiated once over the closed set of geometries.
#include "model/geometrytypes.h"

#include <type_traits>

namespace tqWorkRig {

template class detail_::CompareVisitor<GeometryVisitor, Geometry, GeometryTypes>;

// A GeometryVisitor slot without a class in GeometryTypes would stay pure here.
static_assert(!std::is_abstract<GeometryCompareVisitor>::value, "GeometryTypes must cover every GeometryVisitor slot");

}  // namespace tqWorkRig
