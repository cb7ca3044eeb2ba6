// tqLolMill: a lollipop mill, a ball on a neck.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A lollipop mill: a ball of the tool diameter on a narrower cylindrical neck of the outside diameter.
class TQ_EXPORT tqLolMill : public tqTypedRevolvedTool {
public:
    /// With the default shoulder extender. Throws tqcadcamException for the first broken rule: the common ones,
    /// then 2155, 2191, 2240, 2241, and last 2138 when the arbor is missing or has no solid.
    tqLolMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
              double diameter, double fluteLength, double shoulderLength, double outsideDiameter);
    /// With a given shoulder extender, whose diameter must exceed the neck's.
    tqLolMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
              double diameter, double fluteLength, double shoulderLength, double outsideDiameter,
              const tqShoulderDefinitionExtender& extender);
    tqLolMill(const tqLolMill&) = default;
    tqLolMill& operator=(const tqLolMill&) = default;
    ~tqLolMill() override;

    /// The diameter of the neck.
    double GetOutsideDiameter() const { return m_outsideDiameter; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqLolMill& other) const;
    bool operator!=(const tqLolMill& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqLolMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
              double diameter, double fluteLength, double shoulderLength, double outsideDiameter,
              const tqShoulderDefinitionExtender* extender);

    double m_outsideDiameter;
};

}  // namespace cadcam
