// ToolMountStation: a mount station of the tool kind.
#include "tqWorkRig/model/toolmountstation.h"

namespace tqWorkRig {

ToolMountStation::ToolMountStation(const tqstring& stationName, const tqstring& displayName)
    : MountStation(displayName, stationName, ToolStation) {}

ToolMountStation::ToolMountStation(const ToolMountStation& other) = default;

ToolMountStation::ToolMountStation(ToolMountStation&& other) = default;

ToolMountStation& ToolMountStation::operator=(const ToolMountStation& other) = default;

ToolMountStation& ToolMountStation::operator=(ToolMountStation&& other) = default;

ToolMountStation::~ToolMountStation() = default;

}  // namespace tqWorkRig
