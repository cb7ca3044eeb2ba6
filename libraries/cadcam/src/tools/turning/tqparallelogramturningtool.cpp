// tqParallelogramTurningTool: its parameters and their checks.
#include "cadcam/tools/turning/tqparallelogramturningtool.h"

#include <vector>

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/insertshapes.h"

namespace cadcam {

tqParallelogramTurningTool::tqParallelogramTurningTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                                       const HolderPointer& holder, double insertThickness,
                                                       double cornerRadius, double formAngle, double width,
                                                       double length)
    : tqTypedExtrudedTool(units, arbor, holder, insertThickness),
      m_cornerRadius(cornerRadius),
      m_formAngle(formAngle),
      m_width(width),
      m_length(length) {
    if (!(cornerRadius > 0)) throw tqcadcamException(2342);
    if (!(formAngle > 0 && formAngle < 90)) throw tqcadcamException(2346);
    if (!(width > 0)) throw tqcadcamException(2347);
    if (!(cornerRadius < width / 2)) throw tqcadcamException(2344);
    // The two fillets on a long edge take 2·rε/sin ε of it between them.
    if (!(length > 2 * cornerRadius / shape::SinDegrees(formAngle))) throw tqcadcamException(2348);
    BuildCuttingPart(units);
}

tqParallelogramTurningTool::~tqParallelogramTurningTool() = default;

void tqParallelogramTurningTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqParallelogramTurningTool::operator==(const tqParallelogramTurningTool& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius && m_formAngle == other.m_formAngle &&
           m_width == other.m_width && m_length == other.m_length;
}

void tqParallelogramTurningTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    m_width *= factor;
    m_length *= factor;
    tqTypedExtrudedTool::Scale(units, factor);
}

tq2dContour<double> tqParallelogramTurningTool::MakeInsertContour() const {
    return shape::RoundedContour(shape::Parallelogram(m_formAngle, m_length, m_width),
                                 std::vector<double>(4, m_cornerRadius), true);
}

}  // namespace cadcam
