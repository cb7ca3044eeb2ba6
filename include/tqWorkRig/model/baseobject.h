// BaseObject: the root of every named thing in a work rig, with a display name and text attributes.
#pragma once

#include <map>

#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "misc/tqstring.h"

namespace tqWorkRig {

using misc::tqstring;

/// A display name and a map of text attributes ordered by key. Copies share the attribute map.
class TQ_EXPORT BaseObject {
public:
    using AttributeMap = std::map<tqstring, tqstring>;

    /// Sets the name and allocates a new, empty attribute map.
    explicit BaseObject(const tqstring& displayName);
    /// Copies the name and shares the source's attribute map.
    BaseObject(const BaseObject& other);
    /// Copies the name and makes this object share the source's attribute map.
    BaseObject& operator=(const BaseObject& other);
    virtual ~BaseObject();

    /// The same object, or equal attributes (in key order) and an equal display name.
    bool operator==(const BaseObject& other) const;

    /// The display name; it need not be unique.
    const tqstring& GetDisplayName() const { return m_displayName; }
    /// Replaces the display name.
    void SetDisplayName(const tqstring& displayName);

    /// Inserts the key, or overwrites the value of an existing key.
    void SetAttribute(const tqstring& key, const tqstring& value);
    /// The value of the key; the empty string when the key is absent.
    tqstring GetAttributeValue(const tqstring& key) const;
    /// Erases the key; an absent key is no failure.
    void RemoveAttribute(const tqstring& key);
    /// Empties the attribute map, which every sharing copy sees.
    void ClearAllAttributes();
    /// The attribute map pointer.
    const misc::tqAutoPointer<AttributeMap>& GetAllAttributes() const { return m_attributes; }
    /// The attribute map pointer, writable so that a caller may reseat it.
    misc::tqAutoPointer<AttributeMap>& GetAllAttributes() { return m_attributes; }

private:
    misc::tqAutoPointer<AttributeMap> m_attributes;
    tqstring m_displayName;
};

}  // namespace tqWorkRig
