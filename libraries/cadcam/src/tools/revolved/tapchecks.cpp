// The lead of tqTapLH and tqTapRH: its head and its rules.
#include "tools/revolved/tapchecks.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {
namespace detail_ {

shape::RoundedCorner TapLead(double diameter, double fluteLength, double cornerRadius, int cornerRadiusType,
                             double tipAngle) {
    const double radius = diameter / 2;
    const double lead = shape::ConeHeight(radius, tipAngle / 2);
    return shape::MakeRoundedCorner({shape::Point(0, 0), shape::Point(radius, lead), shape::Point(radius, fluteLength)},
                                    1, cornerRadiusType, cornerRadius);
}

void CheckTapLead(double diameter, double fluteLength, double cornerRadius, int cornerRadiusType, double tipAngle) {
    using Tool = tqTypedRevolvedTool;
    if (!(cornerRadiusType == Tool::CRT_NONE || cornerRadiusType == Tool::CRT_CORNER ||
          cornerRadiusType == Tool::CRT_FULL)) {
        throw tqcadcamException(2109);
    }
    if (!(cornerRadius >= 0)) throw tqcadcamException(2163);
    if (!(tipAngle >= 1 && tipAngle <= 180)) throw tqcadcamException(2113);
    const shape::RoundedCorner lead = TapLead(diameter, fluteLength, cornerRadius, cornerRadiusType, tipAngle);
    const shape::CornerFillet& corner = lead.fillet;
    // The lead must end within the flutes and its fillet meet the side there (at h_t + t, or exactly at Lf when
    // the full radius consumes the side).
    const double leadTop = lead.points[1].y;
    const double top = corner.fillet.t2.y;
    if (!(leadTop <= fluteLength && top <= fluteLength && corner.fillet.t <= corner.la)) {
        throw tqcadcamException(2112);
    }
}

}  // namespace detail_
}  // namespace cadcam
