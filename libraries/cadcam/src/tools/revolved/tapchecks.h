// The checks both hands of tap share: one rule set for the lead cone and its corner.
#pragma once

namespace cadcam {
namespace detail_ {

/// Throws tqcadcamException 2109, 2163, 2113 or 2112 for the first broken rule of a tap's lead.
void CheckTapLead(double diameter, double fluteLength, double cornerRadius, int cornerRadiusType, double tipAngle);

}  // namespace detail_
}  // namespace cadcam
