// BaseObject: display name, shared attribute map and equality.
#include "tqWorkRig/model/baseobject.h"

namespace tqWorkRig {

BaseObject::BaseObject(const tqstring& displayName) : m_attributes(new AttributeMap()), m_displayName(displayName) {}

BaseObject::BaseObject(const BaseObject& other) = default;

BaseObject& BaseObject::operator=(const BaseObject& other) = default;

BaseObject::~BaseObject() = default;

bool BaseObject::operator==(const BaseObject& other) const {
    if (this == &other) return true;
    if (m_attributes.IsNull() != other.m_attributes.IsNull()) return false;
    // std::map compares sizes first, then entries pairwise in key order.
    if (m_attributes.IsNotNull() && *m_attributes != *other.m_attributes) return false;
    return m_displayName == other.m_displayName;
}

void BaseObject::SetDisplayName(const tqstring& displayName) { m_displayName = displayName; }

void BaseObject::SetAttribute(const tqstring& key, const tqstring& value) { (*m_attributes)[key] = value; }

tqstring BaseObject::GetAttributeValue(const tqstring& key) const {
    const auto found = m_attributes->find(key);
    return found == m_attributes->end() ? tqstring() : found->second;
}

void BaseObject::RemoveAttribute(const tqstring& key) { m_attributes->erase(key); }

void BaseObject::ClearAllAttributes() { m_attributes->clear(); }

}  // namespace tqWorkRig
