// tqOpticDiamondTool: a diamond tool for optics, with its nose radius and angles.
#pragma once

#include "cadcam/tools/tqtool.h"

namespace cadcam {

template <class T>
class tqCuttingPartDefinition;

/// A diamond tool for optics: a flat blade in the turning plane, Thickness thick, whose nose of the given radius
/// sits between two flanks (RT_FULL) or between one flank and the axis (RT_LEFT, RT_RIGHT). The clearance and rake
/// angles are carried without a shape.
class TQ_EXPORT tqOpticDiamondTool : public tqTool {
public:
    using CuttingPartPointer = misc::tqAutoPointer<tqCuttingPartDefinition<double>>;

    /// The form of the clearance face.
    enum ClearanceType : int { CT_CONICAL = 0, CT_CYLINDRICAL = 1 };
    /// Where the nose radius lies: between two flanks, or on the left or right side of the axis.
    enum RadiusType : int { RT_FULL = 0, RT_LEFT = 1, RT_RIGHT = 2 };

    /// Throws tqcadcamException for the first broken rule: 2141 for an unknown clearance or radius type, 3400
    /// unless radius > 0, 3401 unless 0 < includedAngle < 90, 3402 unless −90 < rakeAngle < 90, 3403 unless
    /// 0 < clearanceAngle < 90, 3404 unless length, width and thickness are > 0 and the flanks end below the
    /// length, 3400 again when the nose does not fit between its neighbouring edges.
    tqOpticDiamondTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double radius, double includedAngle, ClearanceType clearanceType, double clearanceAngle,
                       double rakeAngle, RadiusType radiusType, double length, double width, double thickness);
    tqOpticDiamondTool(const tqOpticDiamondTool&) = default;
    tqOpticDiamondTool& operator=(const tqOpticDiamondTool&) = default;
    ~tqOpticDiamondTool() override;

    /// The nose radius.
    double GetRadius() const { return m_radius; }
    /// The angle between the flanks in degrees (RT_FULL), or between the flank and the axis.
    double GetIncludedAngle() const { return m_includedAngle; }
    ClearanceType GetClearanceType() const { return m_clearanceType; }
    /// In degrees.
    double GetClearanceAngle() const { return m_clearanceAngle; }
    /// In degrees.
    double GetRakeAngle() const { return m_rakeAngle; }
    RadiusType GetRadiusType() const { return m_radiusType; }
    /// The length of the blade from its nose.
    double GetLength() const { return m_length; }
    double GetWidth() const { return m_width; }
    double GetThickness() const { return m_thickness; }

    /// The blade as a cutting part: its outline in the turning plane with the nose rounded, the nose's lowest
    /// point at the origin, extruded over y from -Thickness to 0. Never null once the tool is built.
    const CuttingPartPointer& GetCuttingPart() const { return m_cuttingPart; }

    void AcceptBranchVisitor(tqToolBranchVisitor& visitor) const override;
    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqOpticDiamondTool& other) const;
    bool operator!=(const tqOpticDiamondTool& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Makes the cutting part from the parameters, in the given units.
    void BuildCuttingPart(measures::tqUnitsFactory::Units units);

    double m_radius;
    double m_includedAngle;
    ClearanceType m_clearanceType;
    double m_clearanceAngle;
    double m_rakeAngle;
    RadiusType m_radiusType;
    double m_length;
    double m_width;
    double m_thickness;
    CuttingPartPointer m_cuttingPart;
};

}  // namespace cadcam
