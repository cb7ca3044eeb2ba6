// DockableObject: the root of everything that can hang in a connector tree.
#pragma once

#include "misc/export.h"
#include "tqWorkRig/model/baseobject.h"

namespace tqWorkRig {

class DockableObjectVisitor;

/// A named object that docking frames attach to. The `comparing` flag guards recursive equality between an
/// object and its frames' parent links.
class TQ_EXPORT DockableObject : public BaseObject {
public:
    /// Also copies the comparing flag.
    DockableObject(const DockableObject& other);
    /// Member by member, the comparing flag included.
    DockableObject& operator=(const DockableObject& other);
    ~DockableObject() override;

    /// Calls the visitor's Visit for this object's concrete class.
    virtual void AcceptVisitor(DockableObjectVisitor& visitor) const = 0;

    /// The same object, or BaseObject equality.
    bool operator==(const DockableObject& other) const;

    /// True while this object's own operator== runs.
    bool IsComparing() const { return m_comparing; }

protected:
    /// Sets the name; the comparing flag starts cleared.
    explicit DockableObject(const tqstring& displayName);

    /// Sets the comparing flag of an object for its lifetime and clears it on every way out.
    class ComparingScope {
    public:
        explicit ComparingScope(const DockableObject& object) : m_object(object) { m_object.m_comparing = true; }
        ~ComparingScope() { m_object.m_comparing = false; }
        ComparingScope(const ComparingScope&) = delete;
        ComparingScope& operator=(const ComparingScope&) = delete;

    private:
        const DockableObject& m_object;
    };

private:
    mutable bool m_comparing;
};

}  // namespace tqWorkRig
