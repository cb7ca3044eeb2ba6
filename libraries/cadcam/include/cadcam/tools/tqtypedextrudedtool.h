// tqTypedExtrudedTool: turning inserts given by named parameters, with their insert thickness.
#pragma once

#include "cadcam/tools/tqextrudedtool.h"

namespace cadcam {

template <class T>
class tq2dContour;
template <class T>
class tqCuttingPartDefinition;

/// A turning insert. Its holder must be a turning solid; the insert has a positive thickness.
class TQ_EXPORT tqTypedExtrudedTool : public tqExtrudedTool {
public:
    ~tqTypedExtrudedTool() override;

    using CuttingPartPointer = misc::tqAutoPointer<tqCuttingPartDefinition<double>>;

    double GetInsertThickness() const { return m_insertThickness; }
    /// The insert as a cutting part: its outline in the turning plane (normal (0, -1, 0), counterclockwise in
    /// (X, Z)) extruded over y from -InsertThickness to 0, without a contour for sizes beyond computation (below
    /// 1e-9 or above 1e150). Never null once the tool is built.
    const CuttingPartPointer& GetCuttingPart() const { return m_cuttingPart; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

protected:
    /// Throws tqcadcamException 2337 when the holder, or its solid, is missing or not a turning solid, then
    /// 2338 unless insertThickness > 0.
    tqTypedExtrudedTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                        double insertThickness);
    tqTypedExtrudedTool(const tqTypedExtrudedTool&) = default;
    tqTypedExtrudedTool& operator=(const tqTypedExtrudedTool&) = default;

    /// The base's parameters and the insert thickness.
    bool BaseEquals(const tqTypedExtrudedTool& other) const;
    /// Scales the thickness and the base, then rebuilds the cutting part from the scaled parameters.
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

    /// The insert's closed outline in the turning plane from the class's parameters, counterclockwise; empty when
    /// the sizes leave nothing to compute.
    virtual tq2dContour<double> MakeInsertContour() const = 0;
    /// Makes the cutting part from MakeInsertContour; each class calls it once its own checks have passed.
    void BuildCuttingPart(measures::tqUnitsFactory::Units units);

private:
    double m_insertThickness;
    CuttingPartPointer m_cuttingPart;
};

}  // namespace cadcam
