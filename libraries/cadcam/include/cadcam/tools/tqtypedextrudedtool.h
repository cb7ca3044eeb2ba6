// tqTypedExtrudedTool: turning inserts given by named parameters, with their insert thickness.
#pragma once

#include "cadcam/tools/tqextrudedtool.h"

namespace cadcam {

/// A turning insert. Its holder must be a turning solid; the insert has a positive thickness.
class TQ_EXPORT tqTypedExtrudedTool : public tqExtrudedTool {
public:
    ~tqTypedExtrudedTool() override;

    double GetInsertThickness() const { return m_insertThickness; }

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
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    double m_insertThickness;
};

}  // namespace cadcam
