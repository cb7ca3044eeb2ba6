// MountStation: a named place on the machine from which connector trees hang.
#pragma once

#include <cstdint>

#include "misc/export.h"
#include "tqWorkRig/model/baseobject.h"

namespace tqWorkRig {

/// A station of a tool or a stock kind. Ordered by kind, tool stations first, then by station name; the display
/// name plays no part in the order.
class TQ_EXPORT MountStation : public BaseObject {
public:
    /// The kind of a station; the numbers are those of the document.
    enum StationType : std::int32_t {
        ToolStation = 0,
        StockStation = 1,
    };

    /// Note the order: display name first, unlike the two subclasses.
    MountStation(const tqstring& displayName, const tqstring& stationName, StationType stationType);
    MountStation(const MountStation& other);
    MountStation& operator=(const MountStation& other);
    ~MountStation() override;

    /// The same object, or BaseObject equality, equal station names and equal types.
    bool operator==(const MountStation& other) const;
    bool operator!=(const MountStation& other) const { return !(*this == other); }
    /// By type (numerically), then by station name in code units.
    bool operator<(const MountStation& other) const;

    /// The station's name on the machine.
    const tqstring& GetStationName() const { return m_stationName; }
    /// Replaces the station name.
    void SetStationName(const tqstring& stationName) { m_stationName = stationName; }
    /// Tool or stock station.
    StationType GetStationType() const { return m_stationType; }

private:
    tqstring m_stationName;
    StationType m_stationType;
};

}  // namespace tqWorkRig
