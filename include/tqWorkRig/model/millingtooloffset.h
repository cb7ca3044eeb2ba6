// MillingToolOffset: the named diameter and length compensation of a milling tool.
#pragma once

#include "misc/export.h"
#include "tqWorkRig/model/baseobject.h"

namespace tqWorkRig {

/// A milling tool offset; values are stored unchecked.
class TQ_EXPORT MillingToolOffset : public BaseObject {
public:
    /// The display name only: the name is empty, and the caller is to set name, diameter and length itself.
    explicit MillingToolOffset(const tqstring& displayName);
    /// All values given.
    MillingToolOffset(const tqstring& name, double diameter, double length, const tqstring& displayName);
    MillingToolOffset(const MillingToolOffset& other);
    MillingToolOffset(MillingToolOffset&& other);
    MillingToolOffset& operator=(const MillingToolOffset& other);
    MillingToolOffset& operator=(MillingToolOffset&& other);
    ~MillingToolOffset() override;

    /// The same object, or equal name, diameter and length, exactly; display name and attributes are not compared.
    bool operator==(const MillingToolOffset& other) const;
    bool operator!=(const MillingToolOffset& other) const { return !(*this == other); }

    /// The offset's name.
    const tqstring& GetName() const { return m_name; }
    /// Replaces the name.
    void SetName(const tqstring& name) { m_name = name; }
    /// The diameter compensation.
    double GetDiameter() const { return m_diameter; }
    /// Stores the diameter compensation.
    void SetDiameter(double diameter) { m_diameter = diameter; }
    /// The length compensation.
    double GetLength() const { return m_length; }
    /// Stores the length compensation.
    void SetLength(double length) { m_length = length; }

private:
    tqstring m_name;
    double m_diameter;
    double m_length;
};

}  // namespace tqWorkRig
