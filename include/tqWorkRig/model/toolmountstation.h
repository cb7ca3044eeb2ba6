// ToolMountStation: a station that takes tools, such as a spindle or a turret pocket.
#pragma once

#include "misc/export.h"
#include "tqWorkRig/model/mountstation.h"

namespace tqWorkRig {

/// A mount station of type ToolStation.
class TQ_EXPORT ToolMountStation : public MountStation {
public:
    /// Note the order: station name first, the reverse of MountStation's.
    ToolMountStation(const tqstring& stationName, const tqstring& displayName);
    ToolMountStation(const ToolMountStation& other);
    ToolMountStation(ToolMountStation&& other);
    ToolMountStation& operator=(const ToolMountStation& other);
    ToolMountStation& operator=(ToolMountStation&& other);
    ~ToolMountStation() override;
};

}  // namespace tqWorkRig
