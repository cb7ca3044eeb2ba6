// StockMountStation: a mount station of the stock kind.
#include "tqWorkRig/model/stockmountstation.h"

namespace tqWorkRig {

StockMountStation::StockMountStation(const tqstring& stationName, const tqstring& displayName)
    : MountStation(displayName, stationName, StockStation) {}

StockMountStation::StockMountStation(const StockMountStation& other) = default;

StockMountStation::StockMountStation(StockMountStation&& other) = default;

StockMountStation& StockMountStation::operator=(const StockMountStation& other) = default;

StockMountStation& StockMountStation::operator=(StockMountStation&& other) = default;

StockMountStation::~StockMountStation() = default;

}  // namespace tqWorkRig
