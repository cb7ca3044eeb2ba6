// tqContourTurningSolidDefinition: a turning solid given by one closed contour.
#pragma once

#include "cadcam/geometry/tq2dcontour.h"
#include "cadcam/tools/solids/tqtypedextrudedsoliddefinition.h"

namespace cadcam {

/// One contour in the turning plane that must be closed, continuous and free of self-intersection.
template <class T>
class TQ_EXPORT tqContourTurningSolidDefinition : public tqTypedExtrudedSolidDefinition<T> {
public:
    using typename tqTypedExtrudedSolidDefinition<T>::Hand;
    using typename tqTypedExtrudedSolidDefinition<T>::Shank;

    /// Throws tqcadcamException 3415 for a contour that is not closed, continuous and simple.
    tqContourTurningSolidDefinition(measures::tqUnitsFactory::Units units, T height, Hand hand, Shank shank,
                                    const tq2dContour<T>& contour);
    tqContourTurningSolidDefinition(const tqContourTurningSolidDefinition&);
    tqContourTurningSolidDefinition& operator=(const tqContourTurningSolidDefinition&);
    ~tqContourTurningSolidDefinition() override;

    const tq2dContour<T>& GetContour() const { return m_contour; }

    void AcceptVisitor(tqSolidDefinitionVisitorGetter<T>& visitor) const override;

    bool operator==(const tqContourTurningSolidDefinition& other) const;
    bool operator!=(const tqContourTurningSolidDefinition& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    tq2dContour<T> m_contour;
};

extern template class TQ_EXPORT tqContourTurningSolidDefinition<double>;
extern template class TQ_EXPORT tqContourTurningSolidDefinition<float>;

}  // namespace cadcam
