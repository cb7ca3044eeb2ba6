// tqChainSawTool: a chain saw blade, straight or simple.
#pragma once

#include "cadcam/tools/tqtypedsawingtool.h"

namespace cadcam {

template <class T>
class tqCuttingPartDefinition;

/// A chain saw blade in the turning plane, tip at Z = 0: straight (a rectangle of BladeWidth by BladeLength) or
/// simple (straight up to StraightBladeLength, then narrowing to BladeUpperWidth at BladeLength). The two tip
/// corners are rounded with the corner radius, or with half the blade width for a full radius.
class TQ_EXPORT tqChainSawTool : public tqTypedSawingTool {
public:
    /// How the tip corners are rounded: with the corner radius, or with half the blade width.
    enum SawCornerRadiusType : int { SCRT_CORNER = 0, SCRT_FULL = 1 };
    /// The outline of the blade.
    enum ChainSawType : int { CST_STRAIGHT = 0, CST_SIMPLE = 1 };
    using CuttingPartPointer = misc::tqAutoPointer<tqCuttingPartDefinition<double>>;

    /// Throws tqcadcamException for the first broken rule: 2302 unless bladeThickness > 0, 2109 for an unknown
    /// corner radius type, 2141 for an unknown chain saw type, 2303 unless bladeWidth > 0, 2304 unless
    /// bladeLength > 0, 2306 unless bladeLength >= straightBladeLength, 2307 unless bladeUpperWidth > 0, 2163
    /// unless cornerRadius >= 0 and the tip rounding fits the blade.
    tqChainSawTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                   double cornerRadius, SawCornerRadiusType cornerRadiusType, ChainSawType chainSawType,
                   double bladeWidth, double bladeThickness, double bladeLength, double straightBladeLength,
                   double bladeUpperWidth);
    tqChainSawTool(const tqChainSawTool&) = default;
    tqChainSawTool& operator=(const tqChainSawTool&) = default;
    ~tqChainSawTool() override;

    /// The radius of the tip corners when the type is SCRT_CORNER.
    double GetCornerRadius() const { return m_cornerRadius; }
    SawCornerRadiusType GetCornerRadiusType() const { return m_cornerRadiusType; }
    ChainSawType GetChainSawType() const { return m_chainSawType; }
    /// The width of the blade at the tip.
    double GetBladeWidth() const { return m_bladeWidth; }
    /// The length of the blade from the tip.
    double GetBladeLength() const { return m_bladeLength; }
    /// Simple blades: the length over which the blade keeps its tip width.
    double GetStraightBladeLength() const { return m_straightBladeLength; }
    /// Simple blades: the width at the blade's far end.
    double GetBladeUpperWidth() const { return m_bladeUpperWidth; }

    /// The blade as a cutting part: its rounded outline in the turning plane, tip at Z = 0, extruded over y
    /// from -BladeThickness/2 to BladeThickness/2. Never null once the tool is built.
    const CuttingPartPointer& GetCuttingPart() const { return m_cuttingPart; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqChainSawTool& other) const;
    bool operator!=(const tqChainSawTool& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Makes the cutting part from the parameters, in the given units.
    void BuildCuttingPart(measures::tqUnitsFactory::Units units);

    double m_cornerRadius;
    SawCornerRadiusType m_cornerRadiusType;
    ChainSawType m_chainSawType;
    double m_bladeWidth;
    double m_bladeLength;
    double m_straightBladeLength;
    double m_bladeUpperWidth;
    CuttingPartPointer m_cuttingPart;
};

}  // namespace cadcam
