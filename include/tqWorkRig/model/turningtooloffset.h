// TurningToolOffset: the named tip offset, tip direction and tip radius of a turning tool.
#pragma once

#include "cadcam/geometry/tqtpoint3d.h"
#include "misc/export.h"
#include "tqWorkRig/model/baseobject.h"

namespace tqWorkRig {

/// A turning tool offset; the tip direction is a plain integer whose meaning the machine gives.
class TQ_EXPORT TurningToolOffset : public BaseObject {
public:
    /// One text for both name and display name; tip offset, direction and radius are zero.
    explicit TurningToolOffset(const tqstring& name);
    /// Name, tip direction, tip radius and display name; the tip offset is the zero point.
    TurningToolOffset(const tqstring& name, int toolTipDirection, double toolTipRadius, const tqstring& displayName);
    TurningToolOffset(const TurningToolOffset& other);
    TurningToolOffset(TurningToolOffset&& other);
    TurningToolOffset& operator=(const TurningToolOffset& other);
    TurningToolOffset& operator=(TurningToolOffset&& other);
    ~TurningToolOffset() override;

    /// The same object, or equal name, tip direction, tip radius and tip offset coordinates, exactly; display name
    /// and attributes are not compared.
    bool operator==(const TurningToolOffset& other) const;
    bool operator!=(const TurningToolOffset& other) const { return !(*this == other); }

    /// The offset's name.
    const tqstring& GetName() const { return m_name; }
    /// Replaces the name.
    void SetName(const tqstring& name) { m_name = name; }
    /// The tip offset.
    cadcam::tqTPoint3d<double> GetToolTipOffset() const { return m_toolTipOffset; }
    /// Stores the tip offset.
    void SetToolTipOffset(const cadcam::tqTPoint3d<double>& offset) { m_toolTipOffset = offset; }
    /// The tip direction.
    int GetToolTipDirection() const { return m_toolTipDirection; }
    /// Stores the tip direction.
    void SetToolTipDirection(int direction) { m_toolTipDirection = direction; }
    /// The tip radius.
    double GetToolTipRadius() const { return m_toolTipRadius; }
    /// Stores the tip radius.
    void SetToolTipRadius(double radius) { m_toolTipRadius = radius; }

private:
    tqstring m_name;
    cadcam::tqTPoint3d<double> m_toolTipOffset;
    int m_toolTipDirection;
    double m_toolTipRadius;
};

}  // namespace tqWorkRig
