// What both hands of tap share: the head of the lead cone and its corner, and one rule set for them.
#pragma once

#include "tools/shape/headpath.h"

namespace cadcam {
namespace detail_ {

/// The lead cone S(0,0) L(R,h_t) L(R,Lf) with its corner at (R, h_t) rounded for the corner radius type.
shape::RoundedCorner TapLead(double diameter, double fluteLength, double cornerRadius, int cornerRadiusType,
                             double tipAngle);

/// Throws tqcadcamException 2109, 2163, 2113 or 2112 for the first broken rule of a tap's lead.
void CheckTapLead(double diameter, double fluteLength, double cornerRadius, int cornerRadiusType, double tipAngle);

}  // namespace detail_
}  // namespace cadcam
