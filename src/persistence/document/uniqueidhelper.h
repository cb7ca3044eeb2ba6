// UniqueIDHelper: the "uniqueID" texts a writer gives objects, and their look-up by object address.
#pragma once

#include <cstdint>
#include <map>

#include "misc/tqstring.h"

namespace tqWorkRig {

using misc::tqstring;

/// The ids given to objects while one document is written, keyed by the object's address.
using UniqueIDMap = std::map<const void*, tqstring>;

/// Makes ids and finds them again for references; the messages carry no function name on purpose.
class UniqueIDHelper {
public:
    /// A fixed prefix and a decimal running number, such as "WRStock3".
    static tqstring MakePrefixedID(const char* prefix, std::uint64_t number);
    /// The id of a docking frame; null throws "Object is null!", an unknown frame "Object's uniqueID not found!".
    static const tqstring& GetFrameID(const UniqueIDMap& frameIDs, const void* frame);
    /// The id of a mount station; null throws "Object is null!", an unknown one "Objects uniqueID not found!".
    static const tqstring& GetStationID(const UniqueIDMap& stationIDs, const void* station);
};

}  // namespace tqWorkRig
