// UniqueIDHelper: id texts and their look-up.
#include "persistence/document/uniqueidhelper.h"

#include "misc/tqexception.h"
#include "persistence/document/valuestringconverter.h"

namespace tqWorkRig {

tqstring UniqueIDHelper::MakePrefixedID(const char* prefix, std::uint64_t number) {
    return tqstring(prefix) + ValueStringConverter::UInt64ToString(number);
}

const tqstring& UniqueIDHelper::GetFrameID(const UniqueIDMap& frameIDs, const void* frame) {
    if (frame == nullptr) misc::ThrowFailure(u"Object is null!");
    const UniqueIDMap::const_iterator found = frameIDs.find(frame);
    if (found == frameIDs.end()) misc::ThrowFailure(u"Object's uniqueID not found!");
    return found->second;
}

const tqstring& UniqueIDHelper::GetStationID(const UniqueIDMap& stationIDs, const void* station) {
    if (station == nullptr) misc::ThrowFailure(u"Object is null!");
    const UniqueIDMap::const_iterator found = stationIDs.find(station);
    // "Objects" without the apostrophe: the station message has always been spelled so.
    if (found == stationIDs.end()) misc::ThrowFailure(u"Objects uniqueID not found!");
    return found->second;
}

}  // namespace tqWorkRig
