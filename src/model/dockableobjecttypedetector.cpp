// DockableObjectTypeDetector: the three kinds the library asks about, instantiated once.
#include "tqWorkRig/model/dockableobjecttypedetector.h"

#include <type_traits>

namespace tqWorkRig {
namespace detail_ {

template class DockableObjectTypeDetector<Holder>;
template class DockableObjectTypeDetector<Arbor>;
template class DockableObjectTypeDetector<Tool>;

// A DockableObjectVisitor slot without a class in DockableObjectList would stay pure here.
static_assert(!std::is_abstract<DockableObjectTypeDetector<Tool>>::value,
              "DockableObjectList must cover every DockableObjectVisitor slot");

}  // namespace detail_
}  // namespace tqWorkRig
