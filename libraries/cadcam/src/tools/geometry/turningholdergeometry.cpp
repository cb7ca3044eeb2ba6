// Extrusion frames and turning holder prisms.
#include "tools/geometry/turningholdergeometry.h"

#include <algorithm>
#include <cmath>

#include "cadcam/tools/solids/tqturningsoliddefinition.h"
#include "cadcam/tools/tqcadcamexception.h"

namespace cadcam {
namespace toolgeometry {
namespace {

Point3 Normalised(const Point3& v) { return v * (1.0 / v.Length()); }

/// Which optional letters a holder type gives geometry to.
struct HolderLayout {
    bool known;
    bool neutral;
    bool usesE;
    bool usesFG;
};

HolderLayout LayoutOf(int type) {
    using Solid = tqTurningSolidDefinition<double>;
    switch (type) {
        case Solid::GENERIC_TYPE_A:
            return {true, false, false, false};
        case Solid::GENERIC_TYPE_B:
            return {true, false, true, false};
        case Solid::GENERIC_TYPE_C:
            return {true, false, false, true};
        case Solid::GENERIC_TYPE_D:
            return {true, false, true, true};
        case Solid::GENERIC_TYPE_E:
            return {true, true, true, false};
        case Solid::GENERIC_TYPE_F:
            return {true, true, true, true};
        case Solid::GENERIC_TYPE_G:
            return {true, true, false, false};
        case Solid::BORE_TYPE_A:
            return {true, false, false, false};
        case Solid::BORE_TYPE_B:
            return {true, false, true, false};
        case Solid::BORE_TYPE_C:
            return {true, false, true, true};
        default:
            return {false, false, false, false};
    }
}

Polygon Rectangle(double u0, double u1, double v0, double v1) { return {{u0, v0}, {u1, v0}, {u1, v1}, {u0, v1}}; }

}  // namespace

ExtrusionFrame FrameOf(const Point3& constructionPlane, double planeZ, const Point3& extrusion) {
    const double length = constructionPlane.Length();
    if (!(length > 0) || !std::isfinite(length)) throw tqcadcamException(2171);
    ExtrusionFrame frame;
    frame.normal = Normalised(constructionPlane);
    const Point3 x(1, 0, 0), y(0, 1, 0);
    const Point3& axis = std::fabs(frame.normal.Dot(x)) < 0.9 ? x : y;
    frame.e1 = Normalised(axis - frame.normal * axis.Dot(frame.normal));
    frame.e2 = frame.normal.Cross(frame.e1);
    frame.origin = frame.normal * planeZ;
    frame.extrusion = extrusion;
    return frame;
}

ExtrusionFrame TurningFrame(double thickness) { return FrameOf(Point3(0, -1, 0), 0.0, Point3(0, -thickness, 0)); }

bool IsMirrored(const tqTypedExtrudedSolidDefinition<double>& solid, int failure) {
    using Solid = tqTypedExtrudedSolidDefinition<double>;
    if (solid.GetHand() != Solid::H_LEFT && solid.GetHand() != Solid::H_RIGHT) throw tqcadcamException(failure);
    return solid.GetHand() == Solid::H_LEFT;
}

TurningHolderPrisms PrismsOf(const tqTurningSolidDefinition<double>& holder) {
    const HolderLayout layout = LayoutOf(holder.GetType());
    if (!layout.known) throw tqcadcamException(2030);
    const bool mirrored = IsMirrored(holder, 2030);
    const double a = holder.GetParameter('A'), c = holder.GetParameter('C'), d = holder.GetParameter('D');
    const double e = holder.GetParameter('E'), f = layout.usesFG ? holder.GetParameter('F') : 0.0;
    const double g = holder.GetParameter('G'), height = holder.GetHeight();
    // Without E the head is as wide at the tip as the shank reaches (neutral: A, offset: D).
    const double tipWidth = layout.usesE ? e : (layout.neutral ? a : d);
    const double neckWidth = layout.usesFG ? g : a;

    TurningHolderPrisms prisms;
    prisms.thickness = holder.GetParameter('B');
    if (layout.neutral) {
        prisms.polygons.push_back({{-tipWidth / 2, 0}, {tipWidth / 2, 0}, {neckWidth / 2, c}, {-neckWidth / 2, c}});
        if (layout.usesFG) prisms.polygons.push_back(Rectangle(-g / 2, g / 2, c, c + f));
        prisms.polygons.push_back(Rectangle(-a / 2, a / 2, c + f, height));
    } else {
        prisms.polygons.push_back({{0, 0}, {tipWidth, 0}, {d, c}, {d - neckWidth, c}});
        if (layout.usesFG) prisms.polygons.push_back(Rectangle(d - g, d, c, c + f));
        prisms.polygons.push_back(Rectangle(d - a, d, c + f, height));
    }
    if (mirrored) {
        for (Polygon& polygon : prisms.polygons) {
            for (Point2& p : polygon) p.x = -p.x;
            std::reverse(polygon.begin(), polygon.end());
        }
    }
    return prisms;
}

}  // namespace toolgeometry
}  // namespace cadcam
