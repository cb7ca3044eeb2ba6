// tqTypedRevolvedTool: revolved tools given by named parameters, with their common parameters and extender.
#pragma once

#include <cstdint>

#include "cadcam/geometry/tq2dcontour.h"
#include "cadcam/tools/tqrevolvedtool.h"

namespace cadcam {

template <class T>
class tqCuttingPartDefinition;
template <class T>
class tqNonCuttingPartDefinition;
namespace shape {
struct HeadPath;
}

/// A milling or drilling tool of a catalogue class: diameter, flute length (height of the cutting part),
/// shoulder length (height of cutting and non-cutting part) and the shoulder extender.
class TQ_EXPORT tqTypedRevolvedTool : public tqRevolvedTool {
public:
    /// The shank above the flutes: it reaches Diameter at the height Length and stays so up to the shoulder.
    class TQ_EXPORT tqShoulderDefinitionExtender : public measures::tqMeasurable {
    public:
        /// Throws tqcadcamException 2185 unless diameter > 0, 2186 unless length > 0, 3473 unless both are finite.
        tqShoulderDefinitionExtender(measures::tqUnitsFactory::Units units, double diameter, double length);
        tqShoulderDefinitionExtender(const tqShoulderDefinitionExtender&) = default;
        tqShoulderDefinitionExtender& operator=(const tqShoulderDefinitionExtender&) = default;
        ~tqShoulderDefinitionExtender() override;

        double GetDiameter() const { return m_diameter; }
        double GetLength() const { return m_length; }

        bool operator==(const tqShoulderDefinitionExtender& other) const;
        bool operator!=(const tqShoulderDefinitionExtender& other) const { return !(*this == other); }

    protected:
        void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

    private:
        double m_diameter;
        double m_length;
    };

    /// How a corner is rounded: not at all, with the given radius, or with the largest radius that fits.
    enum CornerRadiusType : int { CRT_NONE = 0, CRT_CORNER = 1, CRT_FULL = 2 };
    using CuttingPartPointer = misc::tqAutoPointer<tqCuttingPartDefinition<double>>;
    using NonCuttingPartPointer = misc::tqAutoPointer<tqNonCuttingPartDefinition<double>>;

    ~tqTypedRevolvedTool() override;

    double GetDiameter() const override { return m_diameter; }
    double GetFluteLength() const { return m_fluteLength; }
    double GetShoulderLength() const { return m_shoulderLength; }
    const tqShoulderDefinitionExtender& GetShoulderDefinitionExtender() const { return m_extender; }

    /// The flutes as a cutting part: a revolved solid of the cutting profile, from the tip (y = 0) to y = Lf.
    const CuttingPartPointer& GetCuttingPart() const { return m_cuttingPart; }
    /// The shank as a non-cutting part, in its own coordinates (y from 0 to Ls − Lf); its revolved solid has an
    /// empty profile when Ls = Lf (or Ls − Lf lies within the profile tolerance).
    const NonCuttingPartPointer& GetNonCuttingPart() const { return m_nonCuttingPart; }
    /// The shank's profile in tool coordinates (y from Lf to Ls); empty when the non-cutting part's is.
    const tq2dContour<double>& GetNonCuttingToolProfile() const { return m_nonCuttingToolProfile; }
    /// The cutting profile joined to the shank's.
    const tq2dContour<double>& GetProfile() const override { return m_profile; }

    /// Lf for the cutting part, Ls − Lf for the non-cutting part (absent when Ls = Lf), Ls for both.
    std::optional<double> PartHeightOf(PartHeightSelector selector) const override;
    void AcceptVisitor(tqToolVisitor& visitor) const override;

protected:
    /// How a class tunes the common checks.
    struct CommonRules {
        /// Raised unless the flute length is positive and finite (tqBarrelMill: 2310).
        std::int32_t fluteLengthNumber = 2103;
        /// tqBarrelMill: 2311 unless the shoulder lies strictly above the flutes, in place of 2107.
        bool shoulderAboveFlutes = false;
        /// Whether and how 2336 compares the tool radius with a corner radius the class hands in.
        enum CornerRule { kNone, kBelowRadius, kNonNegativeBelowRadius } cornerRule = kNone;
        double cornerRadius = 0;
    };

    /// Runs the common checks in order: 2105, 2103, 2107, 2336, then 2187 for a given extender. Without an
    /// extender, BuildProfiles sets the default one once the cutting profile gives its top radius.
    tqTypedRevolvedTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                        double diameter, double fluteLength, double shoulderLength,
                        const tqShoulderDefinitionExtender* extender, const CommonRules& rules);
    tqTypedRevolvedTool(const tqTypedRevolvedTool&) = default;
    tqTypedRevolvedTool& operator=(const tqTypedRevolvedTool&) = default;

    /// Builds the profiles and parts from the class's head (every class calls it once its checks passed): the
    /// cutting profile is the head extended and clipped at Lf; when no extender was given, the default one,
    /// diameter max(D, 2·radius at the top of the cutting profile), base length Lf (or Ls when baseAtShoulder);
    /// then the shank and the tool profile. A part that breaks its role's rules throws.
    void BuildProfiles(const shape::HeadPath& head, bool baseAtShoulder = false);
    /// Builds the profiles again from the current parameters, through BuildProfiles; a change of units calls it.
    virtual void RebuildProfiles() = 0;
    /// Whether the constructor got an extender.
    bool HasGivenExtender() const { return m_extenderGiven; }

    /// The base's parameters, the common parameters and the extender.
    bool BaseEquals(const tqTypedRevolvedTool& other) const;
    /// Scales the common lengths and the extender, then rebuilds the profiles (and a default extender) from the
    /// scaled parameters, as a tool built with them has them.
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    double m_diameter;
    double m_fluteLength;
    double m_shoulderLength;
    tqShoulderDefinitionExtender m_extender;
    bool m_extenderGiven;
    CuttingPartPointer m_cuttingPart;
    NonCuttingPartPointer m_nonCuttingPart;
    tq2dContour<double> m_nonCuttingToolProfile;
    tq2dContour<double> m_profile;
};

}  // namespace cadcam
