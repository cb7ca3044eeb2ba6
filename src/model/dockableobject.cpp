// DockableObject: the comparing flag and base equality.
#include "tqWorkRig/model/dockableobject.h"

namespace tqWorkRig {

DockableObject::DockableObject(const tqstring& displayName) : BaseObject(displayName), m_comparing(false) {}

DockableObject::DockableObject(const DockableObject& other) = default;

DockableObject& DockableObject::operator=(const DockableObject& other) = default;

DockableObject::~DockableObject() = default;

bool DockableObject::operator==(const DockableObject& other) const {
    return this == &other || BaseObject::operator==(other);
}

}  // namespace tqWorkRig
