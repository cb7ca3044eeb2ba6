// What the sheet draws of a placed part: sections, contours, prisms and mesh silhouettes in the (X, Z) plane.
#include "gallery/outlines.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <utility>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dcontour.h"
#include "cadcam/geometry/tq2dgeometryconstvisitor.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/geometry/tq2dpoint.h"
#include "cadcam/geometry/tq2dpolyline.h"
#include "cadcam/tools/solids/tqallsoliddefinitions.h"
#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"

namespace gallery {
namespace {

using cadcam::tqTPoint3d;
using Matrix = cadcam::tqMatrix<double, 4, 4>;

/// Arcs are drawn as chords of at most this many degrees: smooth at any size the sheet uses.
constexpr double kArcStepDegrees = 2.0;

/// The points of a chain of two-dimensional items, in order, arcs as fine chords, repeated points dropped.
class Flattener : public cadcam::tq2dGeometryConstVisitor<double> {
public:
    const std::vector<cadcam::tqPoint2d>& GetPoints() const { return m_points; }

    void Visit(const cadcam::tq2dLine<double>& line) override {
        Add(line.GetStart());
        Add(line.GetEnd());
    }
    void Visit(const cadcam::tq2dArc<double>& arc) override {
        Add(arc.GetStart());
        const int steps = std::max(1, static_cast<int>(std::ceil(std::fabs(arc.GetSweep()) / kArcStepDegrees)));
        const double start = arc.GetStartAngle();
        for (int i = 1; i < steps; ++i) Add(arc.PointAtAngle(start + arc.GetSweep() * i / steps));
        Add(arc.GetEnd());
    }
    void Visit(const cadcam::tq2dContour<double>& contour) override {
        for (const auto& item : contour) item->AcceptVisitor(*this);
    }
    void Visit(const cadcam::tq2dPoint<double>& point) override { Add(point.GetPoint()); }
    void Visit(const cadcam::tq2dPolyLine<double>& polyLine) override {
        for (const auto& p : polyLine.GetPoints()) Add(p);
    }

private:
    void Add(const cadcam::tqPoint2d& p) {
        if (m_points.empty() || m_points.back() != p) m_points.push_back(p);
    }
    std::vector<cadcam::tqPoint2d> m_points;
};

std::vector<cadcam::tqPoint2d> Flatten(const cadcam::tq2dContour<double>& contour) {
    Flattener flattener;
    flattener.Visit(contour);
    return flattener.GetPoints();
}

/// Whether the placement keeps the (X, Z) plane as it is: no turn at all, only a move.
bool IsPureMove(const Matrix& m) {
    for (std::size_t r = 0; r < 3; ++r)
        for (std::size_t c = 0; c < 3; ++c)
            if (m(r, c) != (r == c ? 1.0 : 0.0)) return false;
    return m(3, 0) == 0 && m(3, 1) == 0 && m(3, 2) == 0 && m(3, 3) == 1;
}

/// The silhouette seen along +Y: edges between a triangle that faces the viewer (normal toward -Y) and one
/// that does not, and edges of a single triangle.
std::vector<Polyline> Silhouette(const cadcam::tqTMesh<double>& mesh) {
    struct Use {
        int triangles = 0;
        int facing = 0;
    };
    std::map<std::pair<std::uint32_t, std::uint32_t>, Use> edges;
    const auto& vertices = *mesh.GetVertices();
    for (const auto& t : *mesh.GetTriangles()) {
        const auto& a = vertices[t.v[0]];
        const auto normal = (vertices[t.v[1]] - a).Cross(vertices[t.v[2]] - a);
        const bool facing = normal.y < 0;
        for (int k = 0; k < 3; ++k) {
            const std::uint32_t p = t.v[k];
            const std::uint32_t q = t.v[(k + 1) % 3];
            Use& use = edges[{std::min(p, q), std::max(p, q)}];
            ++use.triangles;
            use.facing += facing ? 1 : 0;
        }
    }
    std::vector<Polyline> strokes;
    for (const auto& [edge, use] : edges) {
        if (use.triangles == 1 || (use.facing > 0 && use.facing < use.triangles)) {
            const auto& p = vertices[edge.first];
            const auto& q = vertices[edge.second];
            strokes.push_back({{p.x, p.z}, {q.x, q.z}});
        }
    }
    return strokes;
}

/// Draws each kind of solid the placement leaves in the (X, Z) plane; sets m_needSilhouette for the others.
class OutlineDrawer : public cadcam::tqSolidDefinitionVisitorGetter<double> {
public:
    OutlineDrawer(const Matrix& matrix, Outline& outline) : m_matrix(matrix), m_outline(outline) {}

    bool NeedsSilhouette() const { return m_needSilhouette; }

    void Visit(const cadcam::tqWireSolidDefinition<double>& wire) override {
        if (wire.HasInfiniteLength()) return;  // no end to draw; the mesh refuses it as well
        const double r = wire.GetWireDiameter() / 2;
        AddRing({{-r, 0}, {r, 0}, {r, wire.GetWireLength()}, {-r, wire.GetWireLength()}});
    }
    void Visit(const cadcam::tqContourTurningSolidDefinition<double>& solid) override {
        const bool left = solid.GetHand() == cadcam::tqContourTurningSolidDefinition<double>::H_LEFT;
        Polyline ring;
        for (const auto& p : Flatten(solid.GetContour())) ring.push_back({left ? -p.x : p.x, p.y});
        AddRing(std::move(ring));
    }
    void Visit(const cadcam::tqTurningSolidDefinition<double>& holder) override {
        using Holder = cadcam::tqTurningSolidDefinition<double>;
        const double a = holder.GetParameter('A'), c = holder.GetParameter('C'), d = holder.GetParameter('D');
        const double e = holder.GetParameter('E'), f = holder.GetParameter('F'), g = holder.GetParameter('G');
        const double height = holder.GetHeight();
        // Letters a type does not use are 0, so a neck exists where F does and a head width where E does.
        const double neck = f > 0 ? g : a;
        std::vector<Polyline> prisms;
        const Holder::Type type = holder.GetType();
        if (type == Holder::GENERIC_TYPE_E || type == Holder::GENERIC_TYPE_F || type == Holder::GENERIC_TYPE_G) {
            const double tip = e > 0 ? e : a;
            prisms.push_back({{-tip / 2, 0}, {tip / 2, 0}, {neck / 2, c}, {-neck / 2, c}});
            if (f > 0) prisms.push_back(Box(-g / 2, g / 2, c, c + f));
            prisms.push_back(Box(-a / 2, a / 2, c + f, height));
        } else {
            const double tip = e > 0 ? e : d;
            prisms.push_back({{0, 0}, {tip, 0}, {d, c}, {d - neck, c}});
            if (f > 0) prisms.push_back(Box(d - g, d, c, c + f));
            prisms.push_back(Box(d - a, d, c + f, height));
        }
        const bool left = holder.GetHand() == Holder::H_LEFT;
        for (Polyline& prism : prisms) {
            if (left) {
                for (PlanePoint& p : prism) p.x = -p.x;
            }
            AddRing(std::move(prism));
        }
    }
    void Visit(const cadcam::tqMeshSolidDefinition<double>&) override { m_needSilhouette = true; }
    void Visit(const cadcam::tqExtrudedSolidDefinition<double>& solid) override {
        // Only a prism swept straight along Y shows its contours unchanged in the (X, Z) plane.
        tqTPoint3d<double> n = solid.GetConstructionPlane();
        const double length = std::sqrt(n.Dot(n));
        const auto& sweep = solid.GetExtrusionVector();
        if (!(length > 0) || std::fabs(std::fabs(n.y) / length - 1) > 1e-12 || sweep.x != 0 || sweep.z != 0) {
            m_needSilhouette = true;
            return;
        }
        // In-plane axes: e1 = X, e2 = n x X, which is +Z for n = -Y and -Z for n = +Y.
        const double vSign = n.y < 0 ? 1.0 : -1.0;
        for (const auto& contour : solid.GetContours()) {
            Polyline ring;
            for (const auto& p : Flatten(contour)) ring.push_back({p.x, vSign * p.y});
            AddRing(std::move(ring));
        }
    }
    void Visit(const cadcam::tqRevolvedSolidDefinition<double>& solid) override {
        const auto points = Flatten(solid.GetProfile());
        if (points.empty()) return;
        // The full section: the profile up one side and its mirror back down the other.
        Polyline ring;
        for (const auto& p : points) ring.push_back({p.x, p.y});
        for (auto p = points.rbegin(); p != points.rend(); ++p) ring.push_back({-p->x, p->y});
        AddRing(std::move(ring));
    }
    void Visit(const cadcam::tqSolidDefinition<double>&) override { m_needSilhouette = true; }

private:
    static Polyline Box(double x0, double x1, double z0, double z1) { return {{x0, z0}, {x1, z0}, {x1, z1}, {x0, z1}}; }

    void AddRing(Polyline ring) {
        const auto move = m_matrix.GetTranslation();
        for (PlanePoint& p : ring) p = {p.x + move.x, p.z + move.z};
        m_outline.rings.push_back(std::move(ring));
    }

    const Matrix& m_matrix;
    Outline& m_outline;
    bool m_needSilhouette = false;
};

}  // namespace

Outline OutlineOf(const PlacedPart& placed, const cadcam::tqTMesh<double>& mesh) {
    Outline outline{placed.role, {}, {}};
    const auto& solid = placed.part->GetSolid();
    if (solid.IsNull()) return outline;
    if (IsPureMove(placed.matrix)) {
        OutlineDrawer drawer(placed.matrix, outline);
        solid->AcceptVisitor(drawer);
        if (!drawer.NeedsSilhouette()) return outline;
    }
    outline.rings.clear();
    outline.strokes = Silhouette(mesh);
    return outline;
}

bool Extent(const Outline& outline, PlanePoint& lower, PlanePoint& upper) {
    bool any = false;
    for (const auto* lines : {&outline.rings, &outline.strokes}) {
        for (const Polyline& line : *lines) {
            for (const PlanePoint& p : line) {
                if (!any) {
                    lower = upper = p;
                    any = true;
                }
                lower = {std::min(lower.x, p.x), std::min(lower.z, p.z)};
                upper = {std::max(upper.x, p.x), std::max(upper.z, p.z)};
            }
        }
    }
    return any;
}

}  // namespace gallery
