// tqSolidDefinitionBoundingBox: the box of each solid kind.
#include "cadcam/tools/geometry/tqsoliddefinitionboundingbox.h"

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
#include "tools/geometry/turningholdergeometry.h"

namespace cadcam {
namespace {

using toolgeometry::ExtrusionFrame;
using toolgeometry::Point2;
using toolgeometry::Point3;

/// Adds the items of an extruded contour, each point at the plane and moved by the extrusion vector.
class ExtrudedItemBox : public tq2dGeometryConstVisitor<double> {
public:
    ExtrudedItemBox(const ExtrusionFrame& frame, tq3dBoundingBox& box) : m_frame(frame), m_box(box) {}

    void Visit(const tq2dLine<double>& line) override {
        Add(line.GetStart());
        Add(line.GetEnd());
    }
    void Visit(const tq2dArc<double>& arc) override {
        Add(arc.GetStart());
        Add(arc.GetEnd());
        // Along a world axis w the arc is extreme where its direction from the centre is ±(w·e1, w·e2).
        const Point3 axes[3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
        for (const Point3& w : axes) {
            const double a = w.Dot(m_frame.e1), b = w.Dot(m_frame.e2);
            if (a == 0 && b == 0) continue;
            for (const double degrees : {tqToDegrees(std::atan2(b, a)), tqToDegrees(std::atan2(-b, -a))})
                if (arc.ContainsAngle(degrees)) Add(arc.PointAtAngle(degrees));
        }
    }
    void Visit(const tq2dContour<double>& contour) override {
        for (const auto& item : contour) item->AcceptVisitor(*this);
    }
    void Visit(const tq2dPoint<double>& point) override { Add(point.GetPoint()); }
    void Visit(const tq2dPolyLine<double>& polyLine) override {
        for (const Point2& p : polyLine.GetPoints()) Add(p);
    }

private:
    void Add(const Point2& p) {
        const Point3 at = m_frame.At(p);
        m_box.Add(at);
        m_box.Add(at + m_frame.extrusion);
    }

    const ExtrusionFrame& m_frame;
    tq3dBoundingBox& m_box;
};

}  // namespace

tqSolidDefinitionBoundingBox::tqSolidDefinitionBoundingBox() = default;
tqSolidDefinitionBoundingBox::~tqSolidDefinitionBoundingBox() = default;

tq3dBoundingBox tqSolidDefinitionBoundingBox::Of(const tqSolidDefinition<double>& solid) {
    tqSolidDefinitionBoundingBox visitor;
    solid.AcceptVisitor(visitor);
    return visitor.GetBox();
}

void tqSolidDefinitionBoundingBox::Visit(const tqWireSolidDefinition<double>& solid) {
    if (solid.HasInfiniteLength()) throw tqcadcamException(2174);
    const double r = solid.GetWireDiameter() / 2;
    m_box = tq3dBoundingBox({-r, -r, 0.0}, {r, r, solid.GetWireLength()});
}

void tqSolidDefinitionBoundingBox::Visit(const tqContourTurningSolidDefinition<double>& solid) {
    m_box = tq3dBoundingBox();
    const auto flat = tq2dBoundingBox<double>::Of(solid.GetContour());
    if (!flat.IsInitialised()) return;
    const bool mirrored = toolgeometry::IsMirrored(solid, 3414);
    const double u0 = mirrored ? -flat.GetMax().x : flat.GetMin().x;
    const double u1 = mirrored ? -flat.GetMin().x : flat.GetMax().x;
    const double height = solid.GetHeight();
    m_box =
        tq3dBoundingBox({u0, std::min(-height, 0.0), flat.GetMin().y}, {u1, std::max(-height, 0.0), flat.GetMax().y});
}

void tqSolidDefinitionBoundingBox::Visit(const tqTurningSolidDefinition<double>& solid) {
    const toolgeometry::TurningHolderPrisms prisms = toolgeometry::PrismsOf(solid);
    const ExtrusionFrame frame = toolgeometry::TurningFrame(prisms.thickness);
    m_box = tq3dBoundingBox();
    for (const toolgeometry::Polygon& polygon : prisms.polygons)
        for (const Point2& p : polygon) {
            m_box.Add(frame.At(p));
            m_box.Add(frame.At(p) + frame.extrusion);
        }
}

void tqSolidDefinitionBoundingBox::Visit(const tqMeshSolidDefinition<double>& solid) {
    m_box = tq3dBoundingBox();
    for (const Point3& vertex : *solid.GetMesh()->GetVertices()) m_box.Add(vertex);
}

void tqSolidDefinitionBoundingBox::Visit(const tqExtrudedSolidDefinition<double>& solid) {
    m_box = tq3dBoundingBox();
    if (solid.GetContours().empty()) return;
    const ExtrusionFrame frame =
        toolgeometry::FrameOf(solid.GetConstructionPlane(), solid.GetPlaneZ(), solid.GetExtrusionVector());
    ExtrudedItemBox items(frame, m_box);
    for (const tq2dContour<double>& contour : solid.GetContours()) items.Visit(contour);
}

void tqSolidDefinitionBoundingBox::Visit(const tqRevolvedSolidDefinition<double>& solid) {
    m_box = tq3dBoundingBox();
    const auto flat = tq2dBoundingBox<double>::Of(solid.GetProfile());
    if (!flat.IsInitialised()) return;
    const double r = std::max(flat.GetMax().x, -flat.GetMin().x);
    m_box = tq3dBoundingBox({-r, -r, flat.GetMin().y}, {r, r, flat.GetMax().y});
}

void tqSolidDefinitionBoundingBox::Visit(const tqSolidDefinition<double>&) { throw tqcadcamException(2177); }

}  // namespace cadcam
