// tqTypedRevolvedTool: revolved tools given by named parameters, with their common parameters and extender.
#pragma once

#include <cstdint>

#include "cadcam/tools/tqrevolvedtool.h"

namespace cadcam {

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

    ~tqTypedRevolvedTool() override;

    double GetDiameter() const override { return m_diameter; }
    double GetFluteLength() const { return m_fluteLength; }
    double GetShoulderLength() const { return m_shoulderLength; }
    const tqShoulderDefinitionExtender& GetShoulderDefinitionExtender() const { return m_extender; }

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
    /// extender the class sets the default one with SetDefaultExtender once it knows its top radius.
    tqTypedRevolvedTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                        double diameter, double fluteLength, double shoulderLength,
                        const tqShoulderDefinitionExtender* extender, const CommonRules& rules);
    tqTypedRevolvedTool(const tqTypedRevolvedTool&) = default;
    tqTypedRevolvedTool& operator=(const tqTypedRevolvedTool&) = default;

    /// When no extender was given: diameter max(D, 2·topRadius), base length Lf (or Ls when baseAtShoulder),
    /// where topRadius is the radius at the top of the cutting profile.
    void SetDefaultExtender(double topRadius, bool baseAtShoulder = false);
    /// Whether the constructor got an extender.
    bool HasGivenExtender() const { return m_extenderGiven; }

    /// The base's parameters, the common parameters and the extender.
    bool BaseEquals(const tqTypedRevolvedTool& other) const;
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    double m_diameter;
    double m_fluteLength;
    double m_shoulderLength;
    tqShoulderDefinitionExtender m_extender;
    bool m_extenderGiven;
};

}  // namespace cadcam
