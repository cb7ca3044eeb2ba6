// tqChainSawTool: its parameters and their checks, with the fit of the tip rounding.
#include "cadcam/tools/other/tqchainsawtool.h"

#include <vector>

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/insertshapes.h"

namespace cadcam {
namespace {

using shape::Point;

/// Whether fillets of radius r at both tip corners fit their edges, the tip edge being shared by both.
bool TipRoundingFits(const std::vector<Point>& blade, double r) {
    if (blade.size() < 3) return false;  // a blade shorter than its tolerance has no sides to round into
    const shape::LineLineFillet left = shape::VertexFillet(blade, 0, r);
    const shape::LineLineFillet right = shape::VertexFillet(blade, 1, r);
    return left.fits && right.fits && left.t + right.t <= (blade[1] - blade[0]).Length();
}

/// The radius of both tip corners.
double TipRadius(tqChainSawTool::SawCornerRadiusType type, double cornerRadius, double bladeWidth) {
    return type == tqChainSawTool::SCRT_FULL ? bladeWidth / 2 : cornerRadius;
}

}  // namespace

tqChainSawTool::tqChainSawTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                               const HolderPointer& holder, double cornerRadius, SawCornerRadiusType cornerRadiusType,
                               ChainSawType chainSawType, double bladeWidth, double bladeThickness, double bladeLength,
                               double straightBladeLength, double bladeUpperWidth)
    : tqTypedSawingTool(units, arbor, holder, bladeThickness),
      m_cornerRadius(cornerRadius),
      m_cornerRadiusType(cornerRadiusType),
      m_chainSawType(chainSawType),
      m_bladeWidth(bladeWidth),
      m_bladeLength(bladeLength),
      m_straightBladeLength(straightBladeLength),
      m_bladeUpperWidth(bladeUpperWidth) {
    if (cornerRadiusType != SCRT_CORNER && cornerRadiusType != SCRT_FULL) throw tqcadcamException(2109);
    if (chainSawType != CST_STRAIGHT && chainSawType != CST_SIMPLE) throw tqcadcamException(2141);
    if (!(bladeWidth > 0)) throw tqcadcamException(2303);
    if (!(bladeLength > 0)) throw tqcadcamException(2304);
    if (!(bladeLength >= straightBladeLength)) throw tqcadcamException(2306);
    if (!(bladeUpperWidth > 0)) throw tqcadcamException(2307);
    if (!(cornerRadius >= 0)) throw tqcadcamException(2163);
    const std::vector<Point> blade =
        shape::ChainSawBlade(chainSawType, bladeWidth, bladeLength, straightBladeLength, bladeUpperWidth);
    if (!TipRoundingFits(blade, TipRadius(cornerRadiusType, cornerRadius, bladeWidth))) {
        throw tqcadcamException(2163);
    }
    BuildCuttingPart(units);
}

tqChainSawTool::~tqChainSawTool() = default;

void tqChainSawTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqChainSawTool::operator==(const tqChainSawTool& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius &&
           m_cornerRadiusType == other.m_cornerRadiusType && m_chainSawType == other.m_chainSawType &&
           m_bladeWidth == other.m_bladeWidth && m_bladeLength == other.m_bladeLength &&
           m_straightBladeLength == other.m_straightBladeLength && m_bladeUpperWidth == other.m_bladeUpperWidth;
}

void tqChainSawTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    m_bladeWidth *= factor;
    m_bladeLength *= factor;
    m_straightBladeLength *= factor;
    m_bladeUpperWidth *= factor;
    tqTypedSawingTool::Scale(units, factor);
    BuildCuttingPart(units);
}

void tqChainSawTool::BuildCuttingPart(measures::tqUnitsFactory::Units units) {
    const std::vector<Point> blade =
        shape::ChainSawBlade(m_chainSawType, m_bladeWidth, m_bladeLength, m_straightBladeLength, m_bladeUpperWidth);
    const double r = TipRadius(m_cornerRadiusType, m_cornerRadius, m_bladeWidth);
    // The blade is centred on the rake plane: its contour lies at y = t/2 and sweeps down to y = −t/2.
    const double t = GetBladeThickness();
    m_cuttingPart = shape::TurningPlanePart(units, {shape::RoundedContour(blade, {r, r}, false)}, -t / 2, t);
}

}  // namespace cadcam
