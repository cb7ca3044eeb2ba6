// Sharp outlines of inserts, blades and noses, their rounding into closed contours, and their turning plane solids.
#include "tools/shape/insertshapes.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dcontourproperties.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/geometry/tqangle.h"
#include "cadcam/tools/other/tqchainsawtool.h"
#include "cadcam/tools/other/tqopticdiamondtool.h"
#include "cadcam/tools/parts/tqcuttingpartdefinition.h"
#include "cadcam/tools/solids/tqextrudedsoliddefinition.h"
#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/turning/tqgrooveturningtool.h"

namespace cadcam {
namespace shape {
namespace {

using Groove = tqGrooveTurningTool;

double Size(const Polygon& polygon) {
    double size = 0;
    for (const Point& p : polygon) size = std::max({size, std::fabs(p.x), std::fabs(p.y)});
    return size;
}

/// One item of a contour being assembled: a line, or an arc about its centre.
struct Piece {
    bool isArc;
    Point start, end, centre;
    bool counterclockwise;
    double sweep;  ///< degrees, arcs only
};

double PiecesSize(const std::vector<Piece>& pieces) {
    double size = 0;
    for (const Piece& p : pieces) {
        size = std::max({size, std::fabs(p.start.x), std::fabs(p.start.y), std::fabs(p.end.x), std::fabs(p.end.y)});
        if (p.isArc) size = std::max({size, std::fabs(p.centre.x), std::fabs(p.centre.y)});
    }
    return size;
}

/// Moves an arc's start and its centre with it onto the new chord's perpendicular bisector, nearest to where it
/// was, so that start and end stay equally far from it.
void MoveArcStart(Piece& arc, const Point& start) {
    arc.start = start;
    const Point chord = arc.end - arc.start;
    const double length = chord.Length();
    if (!(length > 0)) return;
    const Point middle = (arc.start + arc.end) * 0.5;
    const Point normal(-chord.y / length, chord.x / length);
    arc.centre = middle + normal * (arc.centre - middle).Dot(normal);
}

/// Drops lines not longer than ε and arcs of no sweep or no radius, then joins each survivor to the previous
/// one's end.
std::vector<Piece> DropDegenerate(const std::vector<Piece>& pieces) {
    const double eps = Epsilon(PiecesSize(pieces));
    std::vector<Piece> kept;
    for (const Piece& p : pieces) {
        const bool degenerate = p.isArc
                                    ? std::fabs(tqToRadians(p.sweep)) <= 1e-12 || (p.start - p.centre).Length() <= eps
                                    : (p.end - p.start).Length() <= eps;
        if (!degenerate) kept.push_back(p);
    }
    for (std::size_t i = 0; i < kept.size(); ++i) {
        const Point& joined = kept[(i + kept.size() - 1) % kept.size()].end;
        if (joined == kept[i].start) continue;
        if (kept[i].isArc) {
            MoveArcStart(kept[i], joined);
        } else {
            kept[i].start = joined;
        }
    }
    return kept;
}

bool IsFinite(const Piece& p) {
    for (double v : {p.start.x, p.start.y, p.end.x, p.end.y, p.centre.x, p.centre.y}) {
        if (!std::isfinite(v)) return false;
    }
    return true;
}

tq2dContour<double> ItemsOf(const std::vector<Piece>& pieces) {
    tq2dContour<double> contour;
    for (const Piece& p : pieces) {
        if (p.isArc) {
            const tqArcDirection direction =
                p.counterclockwise ? tqArcDirection::Counterclockwise : tqArcDirection::Clockwise;
            contour.Append(tq2dContour<double>::Item(new tq2dArc<double>(p.start, p.end, p.centre, direction)));
        } else {
            contour.Append(tq2dContour<double>::Item(new tq2dLine<double>(p.start, p.end)));
        }
    }
    return contour;
}

/// The contour of the pieces once degenerate ones are dropped; empty unless a closed simple region is left, as
/// for sizes too small or too large to compute (a denormal diameter, a form angle that rounds to 0).
tq2dContour<double> ToContour(const std::vector<Piece>& assembled) {
    // Beyond 1e150 the squares of the coordinates overflow in the geometry kernel.
    const bool computable = std::all_of(assembled.begin(), assembled.end(), IsFinite) && PiecesSize(assembled) < 1e150;
    if (!computable) return tq2dContour<double>();
    const std::vector<Piece> pieces = DropDegenerate(assembled);
    const bool hasArc = std::any_of(pieces.begin(), pieces.end(), [](const Piece& p) { return p.isArc; });
    if (pieces.size() < (hasArc ? 2u : 3u)) return tq2dContour<double>();
    tq2dContour<double> contour = ItemsOf(pieces);
    // Sizes far apart in scale (a form angle of 1e-300°) leave an outline that is no region within ε.
    if (!tqIsClosedContinuousAndSimple(contour)) contour.Clear();
    return contour;
}

}  // namespace

Polygon RegularPolygon(int sides, double ic) {
    const double circumradius = ic / 2 / CosDegrees(180.0 / sides);
    Polygon polygon;
    for (int i = 0; i < sides; ++i) {
        double s = 0, c = 0;
        tqSinCosDegrees(-90.0 + i * 360.0 / sides, s, c);
        polygon.emplace_back(circumradius * c, circumradius * s);
    }
    return polygon;
}

void CheckInscribedCorner(double cornerRadius, double ic) {
    if (!(cornerRadius > 0)) throw tqcadcamException(2342);
    if (!(ic > 0)) throw tqcadcamException(2343);
    if (!(cornerRadius < ic / 2)) throw tqcadcamException(2344);
}

tq2dContour<double> RegularInsertContour(int sides, double ic, double cornerRadius) {
    return RoundedContour(RegularPolygon(sides, ic), std::vector<double>(static_cast<std::size_t>(sides), cornerRadius),
                          true);
}

Polygon Rhombus(double ic, double formAngle) {
    const double hv = ic / 2 / SinDegrees(formAngle / 2);
    const double hu = ic / 2 / CosDegrees(formAngle / 2);
    return {{0, 0}, {hu, hv}, {0, 2 * hv}, {-hu, hv}};
}

Polygon Parallelogram(double formAngle, double length, double width) {
    const double s = SinDegrees(formAngle / 2), c = CosDegrees(formAngle / 2);
    const Point v1(length * s, length * c);
    const double shortEdge = width / SinDegrees(formAngle);
    const Point v3(-shortEdge * s, shortEdge * c);
    return {{0, 0}, v1, v1 + v3, v3};
}

double GrooveShoulderRise(int type, double b, double d, double e) {
    // Both sides step out by (D − B)/2; type B steps out on one side by D − B.
    if (type == Groove::TYPE_A || type == Groove::TYPE_D) return (d - b) / 2 * TanDegrees(e);
    if (type == Groove::TYPE_B) return (d - b) * TanDegrees(e);
    return 0;
}

double GrooveReliefHeight(double b, double c, double d, double e) { return c - (b - d) / 2 / TanDegrees(e); }

double GrooveTipHeight(double b, double e) { return b / 2 / TanDegrees(e); }

Polygon GroovePolygon(int type, double a, double b, double c, double d, double e) {
    const double h = GrooveShoulderRise(type, b, d, e);
    Polygon sharp;
    switch (type) {
        case Groove::TYPE_B:
            sharp = {{-b / 2, 0}, {b / 2, 0}, {b / 2, c}, {d - b / 2, c + h}, {d - b / 2, a}, {-b / 2, a}};
            break;
        case Groove::TYPE_C: {
            const double t = GrooveReliefHeight(b, c, d, e);
            sharp = {{-b / 2, 0}, {b / 2, 0},  {b / 2, t},  {d / 2, c},
                     {d / 2, a},  {-d / 2, a}, {-d / 2, c}, {-b / 2, t}};
            break;
        }
        case Groove::TYPE_E: {
            const double hv = GrooveTipHeight(b, e);
            sharp = {{0, 0},      {b / 2, hv}, {b / 2, c},  {d / 2, c},  {d / 2, a},
                     {-d / 2, a}, {-d / 2, c}, {-b / 2, c}, {-b / 2, hv}};
            break;
        }
        default:  // A and D
            sharp = {{-b / 2, 0}, {b / 2, 0},  {b / 2, c},      {d / 2, c + h},
                     {d / 2, a},  {-d / 2, a}, {-d / 2, c + h}, {-b / 2, c}};
            break;
    }
    return MergeCoincident(sharp, type == Groove::TYPE_E ? 1 : 2);
}

Polygon ChainSawBlade(int type, double width, double length, double straightLength, double upperWidth) {
    const double w = width;
    if (type == tqChainSawTool::CST_STRAIGHT) return {{-w / 2, 0}, {w / 2, 0}, {w / 2, length}, {-w / 2, length}};
    // Coincident vertices (no straight part, or no narrowing) merge, keeping the tip's two.
    return MergeCoincident({{-w / 2, 0},
                            {w / 2, 0},
                            {w / 2, straightLength},
                            {upperWidth / 2, length},
                            {-upperWidth / 2, length},
                            {-w / 2, straightLength}},
                           2);
}

double OpticFlankHeight(int radiusType, double includedAngle, double width) {
    const double flankAngle = radiusType == tqOpticDiamondTool::RT_FULL ? includedAngle / 2 : includedAngle;
    return width / 2 / TanDegrees(flankAngle);
}

Polygon OpticDiamondOutline(int radiusType, double includedAngle, double length, double width) {
    const double hw = OpticFlankHeight(radiusType, includedAngle, width);
    const double w = width / 2;
    if (radiusType == tqOpticDiamondTool::RT_FULL) return {{0, 0}, {w, hw}, {w, length}, {-w, length}, {-w, hw}};
    if (radiusType == tqOpticDiamondTool::RT_LEFT) return {{0, 0}, {0, length}, {-w, length}, {-w, hw}};
    return {{0, 0}, {w, hw}, {w, length}, {0, length}};
}

Polygon MergeCoincident(const Polygon& polygon, std::size_t keep) {
    const double eps = Epsilon(Size(polygon));
    Polygon merged(polygon.begin(), polygon.begin() + static_cast<std::ptrdiff_t>(std::min(keep, polygon.size())));
    for (std::size_t i = merged.size(); i < polygon.size(); ++i) {
        if (merged.empty() || (polygon[i] - merged.back()).Length() > eps) merged.push_back(polygon[i]);
    }
    if (merged.size() > std::max<std::size_t>(keep, 1) && (merged.back() - merged.front()).Length() <= eps) {
        merged.pop_back();
    }
    return merged;
}

LineLineFillet VertexFillet(const Polygon& polygon, std::size_t i, double r) {
    const std::size_t n = polygon.size();
    const Point& previous = polygon[(i + n - 1) % n];
    const Point& vertex = polygon[i];
    const Point& next = polygon[(i + 1) % n];
    return MakeLineLineFillet(vertex, Direction(previous, vertex), (vertex - previous).Length(),
                              Direction(vertex, next), (next - vertex).Length(), r);
}

tq2dContour<double> RoundedContour(const Polygon& polygon, const std::vector<double>& radii, bool placeWorkingCorner) {
    const std::size_t n = polygon.size();
    if (n < 3) return tq2dContour<double>();
    std::vector<LineLineFillet> fillets;
    for (std::size_t i = 0; i < n; ++i) fillets.push_back(VertexFillet(polygon, i, i < radii.size() ? radii[i] : 0));

    std::vector<Piece> pieces;
    for (std::size_t i = 0; i < n; ++i) {
        const LineLineFillet& f = fillets[i];
        if (f.applies) pieces.push_back({true, f.t1, f.t2, f.centre, f.turn > 0, f.turn});
        pieces.push_back({false, f.t2, fillets[(i + 1) % n].t1, Point(), true, 0});
    }
    if (placeWorkingCorner && fillets[0].applies) {
        const Point target(0, radii[0]);
        const Point shift = target - fillets[0].centre;
        for (Piece& p : pieces) {
            p.start += shift;
            p.end += shift;
            p.centre += shift;
        }
        // Assigned, not summed: the working corner's lowest point is the origin within the arc's own rounding.
        pieces[0].centre = target;
    }
    return ToContour(pieces);
}

tq2dContour<double> CircleContour(double d) {
    const double r = d / 2;
    const Point centre(0, r);
    const Point quarter[] = {{0, 0}, {r, r}, {0, d}, {-r, r}};
    std::vector<Piece> pieces;
    for (int i = 0; i < 4; ++i) pieces.push_back({true, quarter[i], quarter[(i + 1) % 4], centre, true, 90});
    return ToContour(pieces);
}

tq2dContour<double> Counterclockwise(const tq2dContour<double>& contour) {
    const tq2dContourProperties<double> properties(contour);
    const bool reverse = properties.GetSignedArea() < 0;
    const std::size_t n = properties.GetCount();
    std::vector<Piece> pieces;
    for (std::size_t k = 0; k < n; ++k) {
        const std::size_t i = reverse ? n - 1 - k : k;
        const tq2dArc<double>* arc = properties.GetArc(i);
        Piece p{arc != nullptr, properties.GetStart(i), properties.GetEnd(i), Point(), true, 0};
        if (arc != nullptr) {
            p.centre = arc->GetCentre();
            p.counterclockwise = arc->IsCounterclockwise();
            p.sweep = arc->GetSweep();
        }
        if (reverse) {
            std::swap(p.start, p.end);
            p.counterclockwise = !p.counterclockwise;
            p.sweep = -p.sweep;
        }
        pieces.push_back(p);
    }
    return ItemsOf(pieces);
}

misc::tqAutoPointer<tqCuttingPartDefinition<double>> TurningPlanePart(measures::tqUnitsFactory::Units units,
                                                                      const std::vector<tq2dContour<double>>& contours,
                                                                      double planeZ, double thickness) {
    std::vector<tq2dContour<double>> kept;
    for (const tq2dContour<double>& contour : contours) {
        if (!contour.IsEmpty()) kept.push_back(contour);
    }
    misc::tqAutoPointer<tqSolidDefinition<double>> solid(new tqExtrudedSolidDefinition<double>(
        units, tqTPoint3d<double>(0, -thickness, 0), planeZ, tqTPoint3d<double>(0, -1, 0), kept));
    return misc::tqAutoPointer<tqCuttingPartDefinition<double>>(new tqCuttingPartDefinition<double>(units, solid));
}

}  // namespace shape
}  // namespace cadcam
