// TurningToolOffset: construction and equality of name, tip direction, radius and offset.
#include "tqWorkRig/model/turningtooloffset.h"

namespace tqWorkRig {

TurningToolOffset::TurningToolOffset(const tqstring& name)
    : BaseObject(name), m_name(name), m_toolTipOffset(0.0, 0.0, 0.0), m_toolTipDirection(0), m_toolTipRadius(0.0) {}

TurningToolOffset::TurningToolOffset(const tqstring& name, int toolTipDirection, double toolTipRadius,
                                     const tqstring& displayName)
    : BaseObject(displayName),
      m_name(name),
      m_toolTipOffset(0.0, 0.0, 0.0),
      m_toolTipDirection(toolTipDirection),
      m_toolTipRadius(toolTipRadius) {}

TurningToolOffset::TurningToolOffset(const TurningToolOffset& other) = default;

TurningToolOffset::TurningToolOffset(TurningToolOffset&& other) = default;

TurningToolOffset& TurningToolOffset::operator=(const TurningToolOffset& other) = default;

TurningToolOffset& TurningToolOffset::operator=(TurningToolOffset&& other) = default;

TurningToolOffset::~TurningToolOffset() = default;

bool TurningToolOffset::operator==(const TurningToolOffset& other) const {
    if (this == &other) return true;
    return m_name == other.m_name && m_toolTipDirection == other.m_toolTipDirection &&
           m_toolTipRadius == other.m_toolTipRadius && m_toolTipOffset.x == other.m_toolTipOffset.x &&
           m_toolTipOffset.y == other.m_toolTipOffset.y && m_toolTipOffset.z == other.m_toolTipOffset.z;
}

}  // namespace tqWorkRig
