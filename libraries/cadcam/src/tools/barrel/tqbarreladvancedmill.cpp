// tqBarrelAdvancedMill: its definitions, the barrel they give, the checks and its head.
#include "cadcam/tools/barrel/tqbarreladvancedmill.h"

#include <algorithm>

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/barrelshapes.h"

namespace cadcam {
namespace {

/// The barrel that the three definitions give.
shape::AdvancedBarrel Barrel(const tqBarrelAdvancedMill::FluteHeightDefinition& fluteHeight,
                             const tqBarrelAdvancedMill::AxialPositionDefinition& axialPosition,
                             const tqBarrelAdvancedMill::RadialPositionDefinition& radialPosition,
                             double profileRadius) {
    using Mill = tqBarrelAdvancedMill;
    return shape::MakeAdvancedBarrel(
        profileRadius, fluteHeight.GetDefinedBy() == Mill::FluteHeightDefinition::FH_DEF_BY_LENGTH,
        fluteHeight.GetValue(), axialPosition.GetDefinedBy() == Mill::AxialPositionDefinition::AP_DEF_BY_DISTANCE,
        axialPosition.GetValue(), radialPosition.GetDefinedBy() == Mill::RadialPositionDefinition::RP_DEF_BY_DISTANCE,
        radialPosition.GetValue());
}

/// The corner fillet, the barrel up to its maximum diameter and on to the top of the flutes.
shape::HeadPath Head(const shape::AdvancedBarrel& b, const shape::AdvancedCorner& corner) {
    shape::HeadPath head = shape::LowerFilletPath(corner.bottom, b.cb, shape::Point(b.rmax, b.ya));
    head.ArcTo(shape::Point(b.ru, b.fluteLength), b.cb, true);
    return head;
}

}  // namespace

using FluteHeight = tqBarrelAdvancedMill::FluteHeightDefinition;
using AxialPosition = tqBarrelAdvancedMill::AxialPositionDefinition;
using RadialPosition = tqBarrelAdvancedMill::RadialPositionDefinition;

FluteHeight::FluteHeightDefinition()
    : FluteHeightDefinition(measures::tqUnitsFactory::Metric, 0, FH_DEF_BY_UPPER_DIAMETER) {}

FluteHeight::FluteHeightDefinition(measures::tqUnitsFactory::Units units, double value, DefinitionType definedBy)
    : measures::tqMeasurable(units), m_value(value), m_definedBy(definedBy) {}

FluteHeight::~FluteHeightDefinition() = default;

bool FluteHeight::operator==(const FluteHeightDefinition& other) const {
    return GetUnits() == other.GetUnits() && m_value == other.m_value && m_definedBy == other.m_definedBy;
}

void FluteHeight::Scale(measures::tqUnitsFactory::Units, const double& factor) { m_value *= factor; }

AxialPosition::AxialPositionDefinition()
    : AxialPositionDefinition(measures::tqUnitsFactory::Metric, 0, AP_DEF_BY_DISTANCE) {}

AxialPosition::AxialPositionDefinition(measures::tqUnitsFactory::Units units, double value, DefinitionType definedBy)
    : measures::tqMeasurable(units), m_value(value), m_definedBy(definedBy) {}

AxialPosition::~AxialPositionDefinition() = default;

bool AxialPosition::operator==(const AxialPositionDefinition& other) const {
    return GetUnits() == other.GetUnits() && m_value == other.m_value && m_definedBy == other.m_definedBy;
}

void AxialPosition::Scale(measures::tqUnitsFactory::Units, const double& factor) { m_value *= factor; }

RadialPosition::RadialPositionDefinition()
    : RadialPositionDefinition(measures::tqUnitsFactory::Metric, 0, RP_DEF_BY_DISTANCE) {}

RadialPosition::RadialPositionDefinition(measures::tqUnitsFactory::Units units, double value, DefinitionType definedBy)
    : measures::tqMeasurable(units), m_value(value), m_definedBy(definedBy) {}

RadialPosition::~RadialPositionDefinition() = default;

bool RadialPosition::operator==(const RadialPositionDefinition& other) const {
    return GetUnits() == other.GetUnits() && m_value == other.m_value && m_definedBy == other.m_definedBy;
}

void RadialPosition::Scale(measures::tqUnitsFactory::Units, const double& factor) { m_value *= factor; }

struct tqBarrelAdvancedMill::Derivation {
    shape::AdvancedBarrel barrel;
};

tqBarrelAdvancedMill::Derivation tqBarrelAdvancedMill::Derive(const FluteHeightDefinition& fluteHeight,
                                                              const AxialPositionDefinition& axialPosition,
                                                              const RadialPositionDefinition& radialPosition,
                                                              double cornerRadius, CornerRadiusType cornerRadiusType,
                                                              double profileRadius) {
    const int flutesBy = fluteHeight.GetDefinedBy();
    const int axialBy = axialPosition.GetDefinedBy();
    const int radialBy = radialPosition.GetDefinedBy();
    const int crt = cornerRadiusType;
    if (!(flutesBy == FluteHeight::FH_DEF_BY_UPPER_DIAMETER || flutesBy == FluteHeight::FH_DEF_BY_LENGTH)) {
        throw tqcadcamException(2289);
    }
    if (!(axialBy == AxialPosition::AP_DEF_BY_DISTANCE || axialBy == AxialPosition::AP_DEF_BY_REFERENCE_DIAMETER)) {
        throw tqcadcamException(2286);
    }
    if (!(radialBy == RadialPosition::RP_DEF_BY_DISTANCE || radialBy == RadialPosition::RP_DEF_BY_MAX_DIAMETER)) {
        throw tqcadcamException(2283);
    }
    if (!(crt == CRT_NONE || crt == CRT_CORNER || crt == CRT_FULL)) throw tqcadcamException(2109);
    if (!(profileRadius > 0)) throw tqcadcamException(2166);
    if (!(cornerRadius >= 0)) throw tqcadcamException(2163);
    if (!(fluteHeight.GetValue() > 0)) throw tqcadcamException(2290);
    const bool flutesByLength = flutesBy == FluteHeight::FH_DEF_BY_LENGTH;
    const bool axialByDistance = axialBy == AxialPosition::AP_DEF_BY_DISTANCE;
    if (!(axialPosition.GetValue() >= 0)) throw tqcadcamException(axialByDistance ? 2291 : 2280);

    const shape::AdvancedBarrel b = Barrel(fluteHeight, axialPosition, radialPosition, profileRadius);
    const double rp = profileRadius;
    if (!(rp > b.dr)) throw tqcadcamException(2282);
    if (axialByDistance) {
        if (!(rp > b.ya)) throw tqcadcamException(2284);
        if (!(b.rref >= 0)) throw tqcadcamException(2280);
    } else if (!(rp > b.dr + b.rref)) {
        throw tqcadcamException(2285);
    }
    if (!(b.rmax > b.rref)) throw tqcadcamException(2281);
    if (flutesByLength) {
        if (!(rp > b.fluteLength - b.ya)) throw tqcadcamException(2288);
        if (!(b.ru >= 0)) throw tqcadcamException(2164);
    } else {
        if (!(b.ru <= b.rmax)) throw tqcadcamException(2164);
        if (!(rp > b.dr + b.ru)) throw tqcadcamException(2287);
    }
    if (!(b.ya <= b.fluteLength)) throw tqcadcamException(2312);
    return Derivation{b};
}

tqBarrelAdvancedMill::tqBarrelAdvancedMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                           const HolderPointer& holder,
                                           const FluteHeightDefinition& fluteHeightDefinition,
                                           const AxialPositionDefinition& axialPositionDefinition,
                                           const RadialPositionDefinition& radialPositionDefinition,
                                           double cornerRadius, CornerRadiusType cornerRadiusType,
                                           double shoulderLength, double profileRadius)
    : tqBarrelAdvancedMill(units, arbor, holder, fluteHeightDefinition, axialPositionDefinition,
                           radialPositionDefinition, cornerRadius, cornerRadiusType, shoulderLength, profileRadius,
                           nullptr) {}

tqBarrelAdvancedMill::tqBarrelAdvancedMill(
    measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
    const FluteHeightDefinition& fluteHeightDefinition, const AxialPositionDefinition& axialPositionDefinition,
    const RadialPositionDefinition& radialPositionDefinition, double cornerRadius, CornerRadiusType cornerRadiusType,
    double shoulderLength, double profileRadius, const tqShoulderDefinitionExtender& extender)
    : tqBarrelAdvancedMill(units, arbor, holder, fluteHeightDefinition, axialPositionDefinition,
                           radialPositionDefinition, cornerRadius, cornerRadiusType, shoulderLength, profileRadius,
                           &extender) {}

tqBarrelAdvancedMill::tqBarrelAdvancedMill(
    measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
    const FluteHeightDefinition& fluteHeightDefinition, const AxialPositionDefinition& axialPositionDefinition,
    const RadialPositionDefinition& radialPositionDefinition, double cornerRadius, CornerRadiusType cornerRadiusType,
    double shoulderLength, double profileRadius, const tqShoulderDefinitionExtender* extender)
    : tqBarrelAdvancedMill(units, arbor, holder, fluteHeightDefinition, axialPositionDefinition,
                           radialPositionDefinition, cornerRadius, cornerRadiusType, shoulderLength, profileRadius,
                           extender,
                           Derive(fluteHeightDefinition, axialPositionDefinition, radialPositionDefinition,
                                  cornerRadius, cornerRadiusType, profileRadius)) {}

tqBarrelAdvancedMill::tqBarrelAdvancedMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                           const HolderPointer& holder,
                                           const FluteHeightDefinition& fluteHeightDefinition,
                                           const AxialPositionDefinition& axialPositionDefinition,
                                           const RadialPositionDefinition& radialPositionDefinition,
                                           double cornerRadius, CornerRadiusType cornerRadiusType,
                                           double shoulderLength, double profileRadius,
                                           const tqShoulderDefinitionExtender* extender, const Derivation& derivation)
    : tqTypedRevolvedTool(units, arbor, holder, 2 * derivation.barrel.rmax, derivation.barrel.fluteLength,
                          shoulderLength, extender, CommonRules()),
      m_fluteHeightDefinition(fluteHeightDefinition),
      m_axialPositionDefinition(axialPositionDefinition),
      m_radialPositionDefinition(radialPositionDefinition),
      m_cornerRadius(cornerRadius),
      m_cornerRadiusType(cornerRadiusType),
      m_profileRadius(profileRadius) {
    const shape::AdvancedBarrel& b = derivation.barrel;
    const shape::AdvancedCorner corner = shape::MakeAdvancedCorner(b, cornerRadiusType, cornerRadius);
    if (cornerRadiusType == CRT_CORNER && !(cornerRadius < corner.fullRadius)) throw tqcadcamException(2293);
    if (!corner.bottom.ok) throw tqcadcamException(2295);
    const double epsilon = shape::Epsilon(std::max(b.rmax, b.fluteLength));
    if (!(corner.bottom.f.x >= -epsilon && corner.bottom.tk.y <= b.ya)) throw tqcadcamException(2315);
    // The values were read in the tool's units; the copies say so.
    m_fluteHeightDefinition.SetUnits(units, true);
    m_axialPositionDefinition.SetUnits(units, true);
    m_radialPositionDefinition.SetUnits(units, true);
    BuildProfiles(Head(b, corner));
}

tqBarrelAdvancedMill::~tqBarrelAdvancedMill() = default;

void tqBarrelAdvancedMill::RebuildProfiles() {
    const shape::AdvancedBarrel b =
        Barrel(m_fluteHeightDefinition, m_axialPositionDefinition, m_radialPositionDefinition, m_profileRadius);
    // The diameter and flute length were scaled, not derived again, so that a round trip of units keeps them
    // within an ulp; the clip at Lf absorbs the ulps by which the scaled barrel's own flute length differs.
    BuildProfiles(Head(b, shape::MakeAdvancedCorner(b, m_cornerRadiusType, m_cornerRadius)));
}

void tqBarrelAdvancedMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqBarrelAdvancedMill::operator==(const tqBarrelAdvancedMill& other) const {
    return BaseEquals(other) && m_fluteHeightDefinition == other.m_fluteHeightDefinition &&
           m_axialPositionDefinition == other.m_axialPositionDefinition &&
           m_radialPositionDefinition == other.m_radialPositionDefinition && m_cornerRadius == other.m_cornerRadius &&
           m_cornerRadiusType == other.m_cornerRadiusType && m_profileRadius == other.m_profileRadius;
}

void tqBarrelAdvancedMill::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    ScaleNested(m_fluteHeightDefinition, units, factor);
    ScaleNested(m_axialPositionDefinition, units, factor);
    ScaleNested(m_radialPositionDefinition, units, factor);
    m_cornerRadius *= factor;
    m_profileRadius *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
