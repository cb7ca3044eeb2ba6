// tqChainSawTool: its parameters and their checks, with the fit of the tip rounding.
#include "cadcam/tools/other/tqchainsawtool.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/profiletoolkit.h"

namespace cadcam {
namespace {

using shape::Point;

/// The sharp outline of the blade, counterclockwise from the left tip corner; vertices 0 and 1 are the tip.
std::vector<Point> SharpBlade(tqChainSawTool::ChainSawType type, double w, double length, double straight,
                              double upper) {
    if (type == tqChainSawTool::CST_STRAIGHT) return {{-w / 2, 0}, {w / 2, 0}, {w / 2, length}, {-w / 2, length}};
    std::vector<Point> outline{{-w / 2, 0},         {w / 2, 0},           {w / 2, straight},
                               {upper / 2, length}, {-upper / 2, length}, {-w / 2, straight}};
    double size = 0;
    for (const Point& p : outline) size = std::max({size, std::fabs(p.x), std::fabs(p.y)});
    const double eps = shape::Epsilon(size);
    // Coincident vertices (no straight part, or no narrowing) merge, keeping the tip's two.
    std::vector<Point> merged{outline[0], outline[1]};
    for (std::size_t i = 2; i < outline.size(); ++i) {
        if ((outline[i] - merged.back()).Length() > eps) merged.push_back(outline[i]);
    }
    if (merged.size() > 2 && (merged.back() - merged.front()).Length() <= eps) merged.pop_back();
    return merged;
}

/// Whether fillets of radius r at both tip corners fit their edges, the tip edge being shared by both.
bool TipRoundingFits(const std::vector<Point>& blade, double r) {
    if (blade.size() < 3) return false;  // a blade shorter than its tolerance has no sides to round into
    const Point& last = blade.back();
    const double w = (blade[1] - blade[0]).Length();
    const shape::LineLineFillet left =
        shape::MakeLineLineFillet(blade[0], shape::Direction(last, blade[0]), (blade[0] - last).Length(),
                                  shape::Direction(blade[0], blade[1]), w, r);
    const shape::LineLineFillet right =
        shape::MakeLineLineFillet(blade[1], shape::Direction(blade[0], blade[1]), w,
                                  shape::Direction(blade[1], blade[2]), (blade[2] - blade[1]).Length(), r);
    return left.fits && right.fits && left.t + right.t <= w;
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
    const double radius = cornerRadiusType == SCRT_FULL ? bladeWidth / 2 : cornerRadius;
    const std::vector<Point> blade =
        SharpBlade(chainSawType, bladeWidth, bladeLength, straightBladeLength, bladeUpperWidth);
    if (!TipRoundingFits(blade, radius)) throw tqcadcamException(2163);
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
}

}  // namespace cadcam
