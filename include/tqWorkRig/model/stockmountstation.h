// StockMountStation: a station that takes stocks and fixtures, such as a table or a chuck.
#pragma once

#include "misc/export.h"
#include "tqWorkRig/model/mountstation.h"

namespace tqWorkRig {

/// A mount station of type StockStation.
class TQ_EXPORT StockMountStation : public MountStation {
public:
    /// Note the order: station name first, the reverse of MountStation's.
    StockMountStation(const tqstring& stationName, const tqstring& displayName);
    StockMountStation(const StockMountStation& other);
    StockMountStation(StockMountStation&& other);
    StockMountStation& operator=(const StockMountStation& other);
    StockMountStation& operator=(StockMountStation&& other);
    ~StockMountStation() override;
};

}  // namespace tqWorkRig
