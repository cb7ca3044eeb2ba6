// tqSolidDefinitionMeshCreator: arcs to chords, revolution about the axis, extrusion with ear-clipped caps.
#include "cadcam/tools/geometry/tqsoliddefinitionmeshcreator.h"

#include <algorithm>
#include <cmath>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dboundingbox.h"
#include "cadcam/geometry/tq2dgeometryconstvisitor.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/geometry/tq2dpoint.h"
#include "cadcam/geometry/tq2dpolyline.h"
#include "cadcam/geometry/tqangle.h"
#include "cadcam/tools/solids/tqallsoliddefinitions.h"
#include "cadcam/tools/tqcadcamexception.h"
#include "tools/geometry/polygontriangulation.h"
#include "tools/geometry/turningholdergeometry.h"

namespace cadcam {
namespace {

using toolgeometry::ExtrusionFrame;
using toolgeometry::Index;
using toolgeometry::Point2;
using toolgeometry::Point3;
using toolgeometry::Polygon;
using Mesh = tqTMesh<double>;
using Triangle = Mesh::Triangle;

/// The finest an arc is cut, whatever the tolerances: guards memory against a tolerance near zero.
constexpr double kMostStepsPerArc = 1 << 20;

/// ε(S) = 1e-9·max(1, S) over the largest absolute coordinate of points.
double EpsilonOf(const std::vector<Point2>& points) {
    double size = 0;
    for (const Point2& p : points) size = std::max({size, std::fabs(p.x), std::fabs(p.y)});
    return 1e-9 * std::max(1.0, size);
}

/// How finely arcs of a radius are cut for the two tolerances.
class ChordTolerance {
public:
    ChordTolerance(double absTol, double relTol) : m_absTol(absTol), m_relTol(relTol) {}

    /// Δ(r) in degrees: the largest step whose chord stays within the tolerance, at most 90.
    double StepAngle(double radius) const {
        double delta = m_absTol > 0 ? m_absTol : 0;
        const double relative = m_relTol * radius;
        if (relative > 0 && (delta == 0 || relative < delta)) delta = relative;
        if (!(delta > 0) || !(radius > 0)) return 90;
        return std::min(90.0, 2 * tqToDegrees(std::acos(std::max(-1.0, 1 - delta / radius))));
    }
    /// max(1, ceil(|sweep| / Δ(r))) equal steps.
    std::size_t Steps(double radius, double sweep) const {
        const double steps = std::ceil(std::fabs(sweep) / StepAngle(radius));
        return static_cast<std::size_t>(std::max(1.0, std::min(steps, kMostStepsPerArc)));
    }

private:
    double m_absTol;
    double m_relTol;
};

/// The points of a chain of items: the first start, then every end, arcs cut into equal steps.
class ChainPoints : public tq2dGeometryConstVisitor<double> {
public:
    ChainPoints(const ChordTolerance& tolerance, std::vector<Point2>& points)
        : m_tolerance(tolerance), m_points(points) {}

    void Visit(const tq2dLine<double>& line) override {
        Start(line.GetStart());
        m_points.push_back(line.GetEnd());
    }
    void Visit(const tq2dArc<double>& arc) override {
        Start(arc.GetStart());
        const std::size_t steps = m_tolerance.Steps(arc.GetRadius(), arc.GetSweep());
        const double start = arc.GetStartAngle(), sweep = arc.GetSweep();
        for (std::size_t i = 1; i < steps; ++i)
            m_points.push_back(arc.PointAtAngle(start + sweep * static_cast<double>(i) / static_cast<double>(steps)));
        m_points.push_back(arc.GetEnd());  // the end keeps its assigned coordinates
    }
    void Visit(const tq2dContour<double>& contour) override {
        for (const auto& item : contour) item->AcceptVisitor(*this);
    }
    void Visit(const tq2dPoint<double>& point) override { m_points.push_back(point.GetPoint()); }
    void Visit(const tq2dPolyLine<double>& polyLine) override {
        m_points.insert(m_points.end(), polyLine.GetPoints().begin(), polyLine.GetPoints().end());
    }

private:
    void Start(const Point2& p) {
        if (m_points.empty()) m_points.push_back(p);
    }

    const ChordTolerance& m_tolerance;
    std::vector<Point2>& m_points;
};

std::vector<Point2> PointsOf(const tq2dContour<double>& chain, const ChordTolerance& tolerance) {
    std::vector<Point2> points;
    points.reserve(chain.GetCount() * 4 + 1);
    ChainPoints visitor(tolerance, points);
    visitor.Visit(chain);
    return points;
}

/// Drops points within ε of their predecessor, the last one too when it comes back to the first.
void DropRepeats(std::vector<Point2>& loop, double epsilon) {
    const auto near = [epsilon](const Point2& a, const Point2& b) {
        return std::fabs(a.x - b.x) <= epsilon && std::fabs(a.y - b.y) <= epsilon;
    };
    std::size_t kept = 0;
    for (std::size_t i = 0; i < loop.size(); ++i)
        if (kept == 0 || !near(loop[i], loop[kept - 1])) loop[kept++] = loop[i];
    while (kept > 1 && near(loop[kept - 1], loop[0])) --kept;
    loop.resize(kept);
}

/// Twice the signed area (positive counterclockwise).
double DoubleArea(const std::vector<Point2>& loop) {
    double sum = 0;
    for (std::size_t i = 0, j = loop.size() - 1; i < loop.size(); j = i++) sum += loop[j].Cross(loop[i]);
    return sum;
}

bool Contains(const std::vector<Point2>& loop, const Point2& p) {
    bool inside = false;
    for (std::size_t i = 0, j = loop.size() - 1; i < loop.size(); j = i++) {
        const Point2& a = loop[i];
        const Point2& b = loop[j];
        if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (p.y - a.y) * (b.x - a.x) / (b.y - a.y)) inside = !inside;
    }
    return inside;
}

/// Appends triangles to a mesh whose vertices are in place, each with its unit normal.
class TriangleSink {
public:
    explicit TriangleSink(Mesh& mesh) : m_vertices(*mesh.GetVertices()), m_triangles(*mesh.GetTriangles()) {}

    void Add(Index a, Index b, Index c) {
        const Point3& pa = m_vertices[a];
        Point3 normal = (m_vertices[b] - pa).Cross(m_vertices[c] - pa);
        const double length = normal.Length();
        if (length > 0) normal *= 1 / length;
        m_triangles.push_back(Triangle{{a, b, c}, normal});
    }

private:
    const std::vector<Point3>& m_vertices;
    std::vector<Triangle>& m_triangles;
};

/// Revolves a closed loop of (radius, height) points about the axis in k = max(8, ceil(360 / Δ(rmax))) steps.
/// Points on the axis are one vertex each; edges on the axis add nothing.
void Revolve(std::vector<Point2> loop, double rmax, const ChordTolerance& tolerance, Mesh& mesh) {
    const double epsilon = EpsilonOf(loop);
    for (Point2& p : loop)
        if (p.x <= epsilon) p.x = 0;
    DropRepeats(loop, epsilon);
    if (loop.size() < 3) return;
    if (DoubleArea(loop) < 0) std::reverse(loop.begin(), loop.end());

    const std::size_t k = std::max<std::size_t>(8, tolerance.Steps(rmax, 360));
    std::vector<double> cosines(k), sines(k);
    for (std::size_t j = 0; j < k; ++j)
        tqSinCosDegrees(360.0 * static_cast<double>(j) / static_cast<double>(k), sines[j], cosines[j]);

    std::vector<Point3>& vertices = *mesh.GetVertices();
    std::vector<Index> first(loop.size());
    std::size_t ringCount = 0;
    for (const Point2& p : loop) ringCount += p.x == 0 ? 0 : 1;
    const std::size_t base = vertices.size();
    vertices.reserve(base + ringCount * k + (loop.size() - ringCount));
    mesh.GetTriangles()->reserve(mesh.GetTriangleCount() + 2 * k * loop.size());
    for (std::size_t i = 0; i < loop.size(); ++i) {
        const Point2& p = loop[i];
        first[i] = static_cast<Index>(vertices.size());
        if (p.x == 0) {
            vertices.emplace_back(0.0, 0.0, p.y);
            continue;
        }
        for (std::size_t j = 0; j < k; ++j) vertices.emplace_back(p.x * cosines[j], p.x * sines[j], p.y);
    }

    TriangleSink sink(mesh);
    for (std::size_t i = 0; i < loop.size(); ++i) {
        const std::size_t next = (i + 1) % loop.size();
        const bool aOnAxis = loop[i].x == 0, bOnAxis = loop[next].x == 0;
        if (aOnAxis && bOnAxis) continue;
        const Index a = first[i], b = first[next];
        for (std::size_t j = 0; j < k; ++j) {
            const Index j1 = static_cast<Index>(j + 1 == k ? 0 : j + 1), j0 = static_cast<Index>(j);
            if (aOnAxis) {
                sink.Add(a, b + j1, b + j0);
            } else if (bOnAxis) {
                sink.Add(a + j0, a + j1, b);
            } else {
                sink.Add(a + j0, a + j1, b + j1);
                sink.Add(a + j0, b + j1, b + j0);
            }
        }
    }
}

/// Extrudes closed loops in a plane: outer loops (inside an even number of others) counterclockwise, holes
/// clockwise, ear-clipped caps at the plane and at the far end, and a quad per loop edge along the sides.
void Extrude(std::vector<std::vector<Point2>> loops, const ExtrusionFrame& frame, Mesh& mesh) {
    double epsilon = 0;
    for (const auto& loop : loops) epsilon = std::max(epsilon, EpsilonOf(loop));
    for (auto& loop : loops) DropRepeats(loop, epsilon);
    loops.erase(std::remove_if(loops.begin(), loops.end(), [](const std::vector<Point2>& l) { return l.size() < 3; }),
                loops.end());
    if (loops.empty()) return;
    const double along = frame.normal.Dot(frame.extrusion);
    if (!(along != 0)) throw tqcadcamException(2171);

    // Nesting decides the role of each loop and the outer loop each hole belongs to.
    const std::size_t count = loops.size();
    std::vector<int> depth(count, 0);
    std::vector<std::size_t> parent(count, count);
    for (std::size_t i = 0; i < count; ++i)
        for (std::size_t j = 0; j < count; ++j)
            if (i != j && Contains(loops[j], loops[i][0])) ++depth[i];
    for (std::size_t i = 0; i < count; ++i) {
        if (depth[i] % 2 == 0) continue;
        for (std::size_t j = 0; j < count; ++j)
            if (depth[j] == depth[i] - 1 && Contains(loops[j], loops[i][0])) parent[i] = j;
    }
    for (std::size_t i = 0; i < count; ++i)
        if ((DoubleArea(loops[i]) > 0) != (depth[i] % 2 == 0)) std::reverse(loops[i].begin(), loops[i].end());

    // Plane vertices of every loop first, then their copies moved by the extrusion vector.
    std::vector<Point2> flat;
    std::vector<Index> offset(count + 1, 0);
    for (std::size_t i = 0; i < count; ++i) {
        offset[i + 1] = static_cast<Index>(offset[i] + loops[i].size());
        flat.insert(flat.end(), loops[i].begin(), loops[i].end());
    }
    const Index total = offset[count];
    std::vector<Point3>& vertices = *mesh.GetVertices();
    const Index base = static_cast<Index>(vertices.size());
    vertices.reserve(vertices.size() + 2 * flat.size());
    for (const Point2& p : flat) vertices.push_back(frame.At(p));
    for (Index i = 0; i < total; ++i) vertices.push_back(vertices[base + i] + frame.extrusion);

    std::vector<std::array<Index, 3>> cap;
    cap.reserve(flat.size() + 2 * count);
    for (std::size_t i = 0; i < count; ++i) {
        if (depth[i] % 2 != 0) continue;
        const auto loopOf = [&](std::size_t l) {
            toolgeometry::IndexLoop indices(loops[l].size());
            for (std::size_t p = 0; p < indices.size(); ++p) indices[p] = static_cast<Index>(offset[l] + p);
            return indices;
        };
        std::vector<toolgeometry::IndexLoop> holes;
        for (std::size_t h = 0; h < count; ++h)
            if (parent[h] == i) holes.push_back(loopOf(h));
        toolgeometry::TriangulatePolygon(flat, loopOf(i), holes, cap);
    }

    // Seen from the side the extrusion goes to, a counterclockwise cap faces outwards at the far end.
    const bool flip = along < 0;
    TriangleSink sink(mesh);
    const auto add = [&](Index a, Index b, Index c) { flip ? sink.Add(a, c, b) : sink.Add(a, b, c); };
    mesh.GetTriangles()->reserve(mesh.GetTriangleCount() + 2 * cap.size() + 2 * total);
    for (const auto& t : cap) {
        add(base + total + t[0], base + total + t[1], base + total + t[2]);
        add(base + t[0], base + t[2], base + t[1]);
    }
    for (std::size_t l = 0; l < count; ++l)
        for (Index p = offset[l]; p < offset[l + 1]; ++p) {
            const Index q = p + 1 == offset[l + 1] ? offset[l] : p + 1;
            add(base + p, base + q, base + total + q);
            add(base + p, base + total + q, base + total + p);
        }
}

/// The loop of a turning contour, mirrored u → −u for hand left.
std::vector<Point2> TurningLoop(const tqContourTurningSolidDefinition<double>& solid, const ChordTolerance& tolerance) {
    std::vector<Point2> loop = PointsOf(solid.GetContour(), tolerance);
    if (toolgeometry::IsMirrored(solid, 3414))
        for (Point2& p : loop) p.x = -p.x;
    return loop;
}

}  // namespace

tqSolidDefinitionMeshCreator::tqSolidDefinitionMeshCreator(double absTol, double relTol)
    : m_absTol(absTol), m_relTol(relTol) {
    if (!(absTol > 0) && !(relTol > 0)) throw tqcadcamException(2177);
}

tqSolidDefinitionMeshCreator::~tqSolidDefinitionMeshCreator() = default;

tqSolidDefinitionMeshCreator::MeshPointer tqSolidDefinitionMeshCreator::Create(const tqSolidDefinition<double>& solid,
                                                                               double absTol, double relTol) {
    tqSolidDefinitionMeshCreator visitor(absTol, relTol);
    solid.AcceptVisitor(visitor);
    return visitor.GetMesh();
}

void tqSolidDefinitionMeshCreator::Visit(const tqWireSolidDefinition<double>& solid) {
    if (solid.HasInfiniteLength()) throw tqcadcamException(2174);
    MeshPointer mesh(new Mesh(solid.GetUnits()));
    const double r = solid.GetWireDiameter() / 2, length = solid.GetWireLength();
    if (r > 0 && length > 0) Revolve({{0, 0}, {r, 0}, {r, length}, {0, length}}, r, {m_absTol, m_relTol}, *mesh);
    m_mesh = mesh;
}

void tqSolidDefinitionMeshCreator::Visit(const tqContourTurningSolidDefinition<double>& solid) {
    const ChordTolerance tolerance(m_absTol, m_relTol);
    MeshPointer mesh(new Mesh(solid.GetUnits()));
    if (solid.GetHeight() != 0)
        Extrude({TurningLoop(solid, tolerance)}, toolgeometry::TurningFrame(solid.GetHeight()), *mesh);
    m_mesh = mesh;
}

void tqSolidDefinitionMeshCreator::Visit(const tqTurningSolidDefinition<double>& solid) {
    const toolgeometry::TurningHolderPrisms prisms = toolgeometry::PrismsOf(solid);
    MeshPointer mesh(new Mesh(solid.GetUnits()));
    if (prisms.thickness != 0) {
        const ExtrusionFrame frame = toolgeometry::TurningFrame(prisms.thickness);
        // Each prism is a closed shell of its own; a flat one (an unchecked holder) is left out.
        for (const Polygon& polygon : prisms.polygons)
            if (DoubleArea(polygon) != 0) Extrude({polygon}, frame, *mesh);
    }
    m_mesh = mesh;
}

void tqSolidDefinitionMeshCreator::Visit(const tqMeshSolidDefinition<double>& solid) {
    m_mesh = MeshPointer(new Mesh(solid.GetMesh()->Clone()));
}

void tqSolidDefinitionMeshCreator::Visit(const tqExtrudedSolidDefinition<double>& solid) {
    const ChordTolerance tolerance(m_absTol, m_relTol);
    MeshPointer mesh(new Mesh(solid.GetUnits()));
    if (!solid.GetContours().empty()) {
        const ExtrusionFrame frame =
            toolgeometry::FrameOf(solid.GetConstructionPlane(), solid.GetPlaneZ(), solid.GetExtrusionVector());
        std::vector<std::vector<Point2>> loops;
        loops.reserve(solid.GetContours().size());
        for (const tq2dContour<double>& contour : solid.GetContours()) loops.push_back(PointsOf(contour, tolerance));
        Extrude(std::move(loops), frame, *mesh);
    }
    m_mesh = mesh;
}

void tqSolidDefinitionMeshCreator::Visit(const tqRevolvedSolidDefinition<double>& solid) {
    const ChordTolerance tolerance(m_absTol, m_relTol);
    MeshPointer mesh(new Mesh(solid.GetUnits()));
    const tq2dContour<double>& profile = solid.GetProfile();
    if (!profile.IsEmpty()) {
        std::vector<Point2> loop = PointsOf(profile, tolerance);
        // Closing segments to the axis at the top and at the bottom; the repeats they make are dropped.
        const Point2 first = loop.front(), last = loop.back();
        loop.emplace_back(0.0, last.y);
        loop.emplace_back(0.0, first.y);
        const auto flat = tq2dBoundingBox<double>::Of(profile);
        Revolve(std::move(loop), std::max(flat.GetMax().x, -flat.GetMin().x), tolerance, *mesh);
    }
    m_mesh = mesh;
}

void tqSolidDefinitionMeshCreator::Visit(const tqSolidDefinition<double>&) { throw tqcadcamException(2177); }

}  // namespace cadcam
