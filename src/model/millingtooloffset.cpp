// MillingToolOffset: construction and equality of name, diameter and length.
#include "tqWorkRig/model/millingtooloffset.h"

namespace tqWorkRig {

// The values start at zero only so that they are never read undefined; the caller is to set them.
MillingToolOffset::MillingToolOffset(const tqstring& displayName)
    : BaseObject(displayName), m_diameter(0.0), m_length(0.0) {}

MillingToolOffset::MillingToolOffset(const tqstring& name, double diameter, double length, const tqstring& displayName)
    : BaseObject(displayName), m_name(name), m_diameter(diameter), m_length(length) {}

MillingToolOffset::MillingToolOffset(const MillingToolOffset& other) = default;

MillingToolOffset::MillingToolOffset(MillingToolOffset&& other) = default;

MillingToolOffset& MillingToolOffset::operator=(const MillingToolOffset& other) = default;

MillingToolOffset& MillingToolOffset::operator=(MillingToolOffset&& other) = default;

MillingToolOffset::~MillingToolOffset() = default;

bool MillingToolOffset::operator==(const MillingToolOffset& other) const {
    if (this == &other) return true;
    return m_name == other.m_name && m_diameter == other.m_diameter && m_length == other.m_length;
}

}  // namespace tqWorkRig
