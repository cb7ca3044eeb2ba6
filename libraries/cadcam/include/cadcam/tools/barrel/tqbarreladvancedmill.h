// tqBarrelAdvancedMill: a barrel mill given by its flute height, axial and radial position definitions.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A barrel mill placed by three definitions: the barrel arc of ProfileRadius has its centre beyond the axis
/// (radial position) at some height (axial position), and the flutes end where the definition of their height
/// says. Diameter and flute length follow from them. A fillet joins the flat bottom to the barrel.
class TQ_EXPORT tqBarrelAdvancedMill : public tqTypedRevolvedTool {
public:
    /// How high the flutes reach: by the diameter at their top, or by their length.
    class TQ_EXPORT FluteHeightDefinition : public measures::tqMeasurable {
    public:
        enum DefinitionType : int { FH_DEF_BY_UPPER_DIAMETER = 0, FH_DEF_BY_LENGTH = 1 };

        /// Metric, value 0, by upper diameter.
        FluteHeightDefinition();
        /// Any kind is kept; the tool refuses an unknown one.
        FluteHeightDefinition(measures::tqUnitsFactory::Units units, double value, DefinitionType definedBy);
        FluteHeightDefinition(const FluteHeightDefinition&) = default;
        FluteHeightDefinition& operator=(const FluteHeightDefinition&) = default;
        ~FluteHeightDefinition() override;

        /// The upper diameter or the flute length.
        double GetValue() const { return m_value; }
        /// What the value gives.
        DefinitionType GetDefinedBy() const { return m_definedBy; }

        /// The same units, value and kind.
        bool operator==(const FluteHeightDefinition& other) const;
        bool operator!=(const FluteHeightDefinition& other) const { return !(*this == other); }

    protected:
        void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

    private:
        double m_value;
        DefinitionType m_definedBy;
    };

    /// The height of the barrel's centre: given directly, or by the diameter where the barrel meets the bottom.
    class TQ_EXPORT AxialPositionDefinition : public measures::tqMeasurable {
    public:
        enum DefinitionType : int { AP_DEF_BY_DISTANCE = 0, AP_DEF_BY_REFERENCE_DIAMETER = 1 };

        /// Metric, value 0, by distance: the centre at the bottom.
        AxialPositionDefinition();
        /// Any kind is kept; the tool refuses an unknown one.
        AxialPositionDefinition(measures::tqUnitsFactory::Units units, double value, DefinitionType definedBy);
        AxialPositionDefinition(const AxialPositionDefinition&) = default;
        AxialPositionDefinition& operator=(const AxialPositionDefinition&) = default;
        ~AxialPositionDefinition() override;

        /// The centre's height or the reference diameter.
        double GetValue() const { return m_value; }
        /// What the value gives.
        DefinitionType GetDefinedBy() const { return m_definedBy; }

        /// The same units, value and kind.
        bool operator==(const AxialPositionDefinition& other) const;
        bool operator!=(const AxialPositionDefinition& other) const { return !(*this == other); }

    protected:
        void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

    private:
        double m_value;
        DefinitionType m_definedBy;
    };

    /// How far the barrel's centre lies beyond the axis: given directly, or by the maximum diameter.
    class TQ_EXPORT RadialPositionDefinition : public measures::tqMeasurable {
    public:
        enum DefinitionType : int { RP_DEF_BY_DISTANCE = 0, RP_DEF_BY_MAX_DIAMETER = 1 };

        /// Metric, value 0, by distance: the centre on the axis.
        RadialPositionDefinition();
        /// Any kind is kept; the tool refuses an unknown one.
        RadialPositionDefinition(measures::tqUnitsFactory::Units units, double value, DefinitionType definedBy);
        RadialPositionDefinition(const RadialPositionDefinition&) = default;
        RadialPositionDefinition& operator=(const RadialPositionDefinition&) = default;
        ~RadialPositionDefinition() override;

        /// The centre's distance beyond the axis or the maximum diameter.
        double GetValue() const { return m_value; }
        /// What the value gives.
        DefinitionType GetDefinedBy() const { return m_definedBy; }

        /// The same units, value and kind.
        bool operator==(const RadialPositionDefinition& other) const;
        bool operator!=(const RadialPositionDefinition& other) const { return !(*this == other); }

    protected:
        void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

    private:
        double m_value;
        DefinitionType m_definedBy;
    };

    /// With the default shoulder extender. The definitions' values are taken as they stand, in the tool's units,
    /// and the tool keeps copies tagged with those units. Throws tqcadcamException for the first broken rule.
    tqBarrelAdvancedMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                         const FluteHeightDefinition& fluteHeightDefinition,
                         const AxialPositionDefinition& axialPositionDefinition,
                         const RadialPositionDefinition& radialPositionDefinition, double cornerRadius,
                         CornerRadiusType cornerRadiusType, double shoulderLength, double profileRadius);
    /// With a given shoulder extender, whose own rules ran when it was made.
    tqBarrelAdvancedMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                         const FluteHeightDefinition& fluteHeightDefinition,
                         const AxialPositionDefinition& axialPositionDefinition,
                         const RadialPositionDefinition& radialPositionDefinition, double cornerRadius,
                         CornerRadiusType cornerRadiusType, double shoulderLength, double profileRadius,
                         const tqShoulderDefinitionExtender& extender);
    tqBarrelAdvancedMill(const tqBarrelAdvancedMill&) = default;
    tqBarrelAdvancedMill& operator=(const tqBarrelAdvancedMill&) = default;
    ~tqBarrelAdvancedMill() override;

    /// Where the flutes end.
    const FluteHeightDefinition& GetFluteHeightDefinition() const { return m_fluteHeightDefinition; }
    /// The height of the barrel's centre.
    const AxialPositionDefinition& GetAxialPositionDefinition() const { return m_axialPositionDefinition; }
    /// The barrel centre's distance beyond the axis.
    const RadialPositionDefinition& GetRadialPositionDefinition() const { return m_radialPositionDefinition; }
    /// The radius of the fillet between the bottom and the barrel, used with CRT_CORNER.
    double GetCornerRadius() const { return m_cornerRadius; }
    /// How the bottom corner is rounded.
    CornerRadiusType GetCornerRadiusType() const { return m_cornerRadiusType; }
    /// The radius of the barrel arc.
    double GetProfileRadius() const { return m_profileRadius; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqBarrelAdvancedMill& other) const;
    bool operator!=(const tqBarrelAdvancedMill& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    /// The barrel that the definitions give, found before the common checks need its diameter and flute length.
    struct Derivation;

    tqBarrelAdvancedMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                         const FluteHeightDefinition& fluteHeightDefinition,
                         const AxialPositionDefinition& axialPositionDefinition,
                         const RadialPositionDefinition& radialPositionDefinition, double cornerRadius,
                         CornerRadiusType cornerRadiusType, double shoulderLength, double profileRadius,
                         const tqShoulderDefinitionExtender* extender);
    tqBarrelAdvancedMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                         const FluteHeightDefinition& fluteHeightDefinition,
                         const AxialPositionDefinition& axialPositionDefinition,
                         const RadialPositionDefinition& radialPositionDefinition, double cornerRadius,
                         CornerRadiusType cornerRadiusType, double shoulderLength, double profileRadius,
                         const tqShoulderDefinitionExtender* extender, const Derivation& derivation);
    /// Runs the checks of the definitions, in order, and derives the barrel.
    static Derivation Derive(const FluteHeightDefinition& fluteHeightDefinition,
                             const AxialPositionDefinition& axialPositionDefinition,
                             const RadialPositionDefinition& radialPositionDefinition, double cornerRadius,
                             CornerRadiusType cornerRadiusType, double profileRadius);

    FluteHeightDefinition m_fluteHeightDefinition;
    AxialPositionDefinition m_axialPositionDefinition;
    RadialPositionDefinition m_radialPositionDefinition;
    double m_cornerRadius;
    CornerRadiusType m_cornerRadiusType;
    double m_profileRadius;
};

}  // namespace cadcam
