// tqGrooveTurningTool: its parameters and their checks, type by type.
#include "cadcam/tools/turning/tqgrooveturningtool.h"

#include <algorithm>
#include <cmath>

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/insertshapes.h"

namespace cadcam {

tqGrooveTurningTool::tqGrooveTurningTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                         const HolderPointer& holder, double insertThickness,
                                         GroovingTurningToolType type, double cornerRadius, double a, double b,
                                         double c, double d, double e)
    : tqTypedExtrudedTool(units, arbor, holder, insertThickness),
      m_type(type),
      m_cornerRadius(cornerRadius),
      m_a(a),
      m_b(b),
      m_c(c),
      m_d(d),
      m_e(e) {
    const int kind = type;
    if (kind < TYPE_A || kind > TYPE_E) throw tqcadcamException(2276);
    const double r = cornerRadius;
    if (!(r > 0)) throw tqcadcamException(2342);
    for (double length : {a, b, c, d}) {
        if (!(length > 0)) throw tqcadcamException(2260);
    }
    if (!(e > 0 && e < 90)) throw tqcadcamException(2061);

    // The shoulder rise between blade and body, as the insert's outline has it.
    const double h = shape::GrooveShoulderRise(type, b, d, e);
    if (!(a > c + h)) throw tqcadcamException(2063);

    switch (type) {
        case TYPE_A:
        case TYPE_D:
            if (!(d >= b)) throw tqcadcamException(2262);
            break;
        case TYPE_B:
        case TYPE_E:
            if (!(d > b)) throw tqcadcamException(2261);
            break;
        case TYPE_C:
            if (!(b > d)) throw tqcadcamException(2277);
            break;
    }

    bool cornerFits = false;
    switch (type) {
        case TYPE_A:
        case TYPE_B:
            cornerFits = r < b / 2 && r <= c;
            break;
        case TYPE_C: {
            // The relief narrows the blade from B at height t to D at the cutting depth.
            const double t = shape::GrooveReliefHeight(b, c, d, e);
            cornerFits = r < b / 2 && t >= r;
            break;
        }
        case TYPE_D: {
            // The full radius tip is two quarter arcs of B/2: the radius must be B/2 within the insert's ε.
            const double eps = shape::Epsilon(std::max({a, b / 2, d / 2}));
            cornerFits = std::fabs(r - b / 2) <= eps && r <= c;
            break;
        }
        case TYPE_E: {
            const double hv = shape::GrooveTipHeight(b, e);
            cornerFits = r / shape::TanDegrees(e) <= b / 2 / shape::SinDegrees(e) && hv <= c;
            break;
        }
    }
    if (!cornerFits) throw tqcadcamException(2278);
    BuildCuttingPart(units);
}

tqGrooveTurningTool::~tqGrooveTurningTool() = default;

void tqGrooveTurningTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqGrooveTurningTool::operator==(const tqGrooveTurningTool& other) const {
    return BaseEquals(other) && m_type == other.m_type && m_cornerRadius == other.m_cornerRadius && m_a == other.m_a &&
           m_b == other.m_b && m_c == other.m_c && m_d == other.m_d && m_e == other.m_e;
}

void tqGrooveTurningTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    m_a *= factor;
    m_b *= factor;
    m_c *= factor;
    m_d *= factor;
    tqTypedExtrudedTool::Scale(units, factor);
}

tq2dContour<double> tqGrooveTurningTool::MakeInsertContour() const {
    const shape::Polygon sharp = shape::GroovePolygon(m_type, m_a, m_b, m_c, m_d, m_e);
    // Types A to D stand on their centred tip edge already; the V tip is moved onto its lowest point.
    if (m_type == TYPE_E) return shape::RoundedContour(sharp, {m_cornerRadius}, true);
    const double r = m_type == TYPE_D ? m_b / 2 : m_cornerRadius;
    return shape::RoundedContour(sharp, {r, r}, false);
}

}  // namespace cadcam
