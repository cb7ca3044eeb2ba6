// tqGrooveTurningTool: a grooving insert of one of five types.
#pragma once

#include "cadcam/tools/tqtypedextrudedtool.h"

namespace cadcam {

/// A grooving insert of one of five types. A is the insert length, B the cutting width at the tip, C the cutting
/// depth, D the body width, E an angle in degrees whose meaning depends on the type.
class TQ_EXPORT tqGrooveTurningTool : public tqTypedExtrudedTool {
public:
    /// The shape of the blade: A shoulder on both sides, B shoulder on one side, C relief, D full radius tip,
    /// E V tip.
    enum GroovingTurningToolType : int { TYPE_A = 0, TYPE_B = 1, TYPE_C = 2, TYPE_D = 3, TYPE_E = 4 };

    /// Throws tqcadcamException for the first broken rule: the family's (2337, 2338), then 2276 for an unknown
    /// type, 2342 unless cornerRadius > 0, 2260 for the first of a, b, c, d not > 0, 2061 unless 0 < e < 90,
    /// 2063 unless the blade and shoulder fit in the length, the type's width rule (2262, 2261 or 2277) and
    /// 2278 unless the corner radius fits the blade.
    tqGrooveTurningTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                        double insertThickness, GroovingTurningToolType type, double cornerRadius, double a, double b,
                        double c, double d, double e);
    tqGrooveTurningTool(const tqGrooveTurningTool&) = default;
    tqGrooveTurningTool& operator=(const tqGrooveTurningTool&) = default;
    ~tqGrooveTurningTool() override;

    GroovingTurningToolType GetGroovingTurningToolType() const { return m_type; }
    /// The radius of the rounded tip corners.
    double GetCornerRadius() const { return m_cornerRadius; }
    /// The insert length.
    double GetA() const { return m_a; }
    /// The cutting width at the tip.
    double GetB() const { return m_b; }
    /// The cutting depth: the height of the blade below the body.
    double GetC() const { return m_c; }
    /// The body width.
    double GetD() const { return m_d; }
    /// The angle in degrees: shoulder angle (A, B, D), relief angle (C) or tip half-angle (E).
    double GetE() const { return m_e; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqGrooveTurningTool& other) const;
    bool operator!=(const tqGrooveTurningTool& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;
    tq2dContour<double> MakeInsertContour() const override;

private:
    GroovingTurningToolType m_type;
    double m_cornerRadius;
    double m_a;
    double m_b;
    double m_c;
    double m_d;
    double m_e;
};

}  // namespace cadcam
