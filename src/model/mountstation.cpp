// MountStation: construction, equality and the order by type and station name.
#include "tqWorkRig/model/mountstation.h"

namespace tqWorkRig {

MountStation::MountStation(const tqstring& displayName, const tqstring& stationName, StationType stationType)
    : BaseObject(displayName), m_stationName(stationName), m_stationType(stationType) {}

MountStation::MountStation(const MountStation& other) = default;

MountStation& MountStation::operator=(const MountStation& other) = default;

MountStation::~MountStation() = default;

bool MountStation::operator==(const MountStation& other) const {
    if (this == &other) return true;
    return BaseObject::operator==(other) && m_stationName == other.m_stationName &&
           m_stationType == other.m_stationType;
}

bool MountStation::operator<(const MountStation& other) const {
    if (m_stationType != other.m_stationType) return m_stationType < other.m_stationType;
    return m_stationName < other.m_stationName;
}

}  // namespace tqWorkRig
