// TreeHelper: the static operations that make connector tree nodes and ask an object for its frames.
#pragma once

#include <vector>

#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "misc/tqstring.h"

namespace tqWorkRig {

class DockableObject;
class DockingFramePlug;
class DockingFrameSocket;
class PlugNode;
class SocketNode;

/// Stateless: builds detached nodes, and lists the frames a dockable object carries.
class TQ_EXPORT TreeHelper {
public:
    TreeHelper() = delete;

    /// A detached plug node for `p`; a null `p` throws.
    static misc::tqAutoPointer<PlugNode> CreateNewPlugNode(const misc::tqAutoPointer<DockingFramePlug>& p);
    /// A detached socket node for `s`; a null `s` throws.
    static misc::tqAutoPointer<SocketNode> CreateNewSocketNode(const misc::tqAutoPointer<DockingFrameSocket>& s);

    /// The plugs `object` carries. Kinds that have no plugs leave a text in `error` instead; an object with no
    /// frames gives an empty list and an empty text. `error` is always overwritten.
    static std::vector<misc::tqAutoPointer<DockingFramePlug>> TryGetPlugs(const DockableObject& object,
                                                                          misc::tqstring& error);
    /// The sockets `object` carries, with the same rules as TryGetPlugs.
    static std::vector<misc::tqAutoPointer<DockingFrameSocket>> TryGetSockets(const DockableObject& object,
                                                                              misc::tqstring& error);
};

}  // namespace tqWorkRig
