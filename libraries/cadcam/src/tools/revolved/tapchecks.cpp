// The lead rules of tqTapLH and tqTapRH.
#include "tools/revolved/tapchecks.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtypedrevolvedtool.h"
#include "tools/shape/drillingshapes.h"

namespace cadcam {
namespace detail_ {

void CheckTapLead(double diameter, double fluteLength, double cornerRadius, int cornerRadiusType, double tipAngle) {
    using Tool = tqTypedRevolvedTool;
    if (!(cornerRadiusType == Tool::CRT_NONE || cornerRadiusType == Tool::CRT_CORNER ||
          cornerRadiusType == Tool::CRT_FULL)) {
        throw tqcadcamException(2109);
    }
    if (!(cornerRadius >= 0)) throw tqcadcamException(2163);
    if (!(tipAngle >= 1 && tipAngle <= 180)) throw tqcadcamException(2113);
    const double radius = diameter / 2;
    const double lead = shape::ConeHeight(radius, tipAngle / 2);
    const shape::SideCorner corner =
        shape::MakeSideCorner(shape::Point(0, 0), radius, lead, fluteLength,
                              cornerRadiusType == Tool::CRT_CORNER ? cornerRadius : 0,
                              cornerRadiusType == Tool::CRT_FULL);
    if (!(corner.top <= fluteLength && corner.t <= corner.la)) throw tqcadcamException(2112);
}

}  // namespace detail_
}  // namespace cadcam
