// The head path of a typed revolved tool: fillets, the convex tip and the clip at the flute length.
#include "tools/shape/headpath.h"

#include <algorithm>
#include <cmath>

namespace cadcam {
namespace shape {
namespace {

double Square(double v) { return v * v; }

}  // namespace

void HeadPath::LineTo(const Point& p) {
    PathItem item;
    item.end = p;
    items.push_back(item);
}

void HeadPath::ArcTo(const Point& p, const Point& c, bool ccw) {
    PathItem item;
    item.end = p;
    item.arc = true;
    item.centre = c;
    item.ccw = ccw;
    items.push_back(item);
}

CornerFillet MakeCornerFillet(const Point& a, const Point& v, const Point& b, int type, double cornerRadius) {
    CornerFillet c;
    c.la = a.DistanceTo(v);
    c.lb = v.DistanceTo(b);
    const Point u1 = Direction(a, v);
    const Point u2 = Direction(v, b);
    c.fullRadius = FullCornerRadius(u1, c.la, u2, c.lb);
    c.radius = type == 2 ? c.fullRadius : (type == 1 ? cornerRadius : 0.0);
    c.fillet = MakeLineLineFillet(v, u1, c.la, u2, c.lb, c.radius);
    if (type == 2 && c.fillet.applies) {
        // The full radius consumes the shorter segment: its far end becomes the tangent point exactly, so
        // that, for instance, a profile starts with the arc at exactly (0, 0).
        LineLineFillet& f = c.fillet;
        f.t = std::min(c.la, c.lb);
        if (c.la <= c.lb) {
            f.t1 = a;
            const Point normal = f.turn > 0 ? Point(-u1.y, u1.x) : Point(u1.y, -u1.x);
            f.centre = f.t1 + normal * c.radius;
        }
        if (c.lb <= c.la) f.t2 = b;
        f.fits = true;
    }
    return c;
}

HeadPath RoundedPolyline(const std::vector<Point>& points, std::size_t corner, const CornerFillet& fillet) {
    HeadPath path(points.front());
    const LineLineFillet& f = fillet.fillet;
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (i == corner && f.applies) {
            path.LineTo(f.t1);
            path.ArcTo(f.t2, f.centre, f.turn > 0);
        } else {
            path.LineTo(points[i]);
        }
    }
    return path;
}

std::vector<Point> FaceHeadPoints(double radius, double outsideRadius, double leadHeight, double fluteLength) {
    const Point bottom(radius, 0);
    const Point lead(outsideRadius, leadHeight);
    const double epsilon = Epsilon(std::max({radius, outsideRadius, fluteLength}));
    if (bottom.DistanceTo(lead) < epsilon) return {Point(0, 0), bottom, Point(outsideRadius, fluteLength)};
    return {Point(0, 0), bottom, lead, Point(outsideRadius, fluteLength)};
}

HeadPath LollipopHead(double radius, double neckRadius) {
    const Point centre(0, radius);
    HeadPath path;
    path.ArcTo(Point(radius, radius), centre, true);
    path.ArcTo(Point(neckRadius, radius + std::sqrt(Square(radius) - Square(neckRadius))), centre, true);
    return path;
}

HeadPath ConvexTipHead(double radius, double tipRadius, double flatRadius, double cornerRadius) {
    const Point tipCentre(flatRadius, tipRadius);
    const double yf =
        tipRadius - std::sqrt(Square(tipRadius - cornerRadius) - Square(radius - cornerRadius - flatRadius));
    const Point side(radius, yf);
    HeadPath path;
    if (flatRadius > 0) path.LineTo(Point(flatRadius, 0));
    if (cornerRadius == 0) {
        // A fillet of radius 0 is no item: the tip arc reaches the side itself.
        path.ArcTo(side, tipCentre, true);
        return path;
    }
    const Point filletCentre(radius - cornerRadius, yf);
    const Point tangent = tipCentre + (filletCentre - tipCentre) * (tipRadius / (tipRadius - cornerRadius));
    path.ArcTo(tangent, tipCentre, true);
    path.ArcTo(side, filletCentre, true);
    return path;
}

double ClipRadiusAt(const HeadPath& path, double h) {
    Point s = path.start;
    for (const PathItem& item : path.items) {
        const Point& e = item.end;
        if (e.y >= h) {
            if (e.y == h) return e.x;
            if (!item.arc) return s.x + (h - s.y) * (e.x - s.x) / (e.y - s.y);
            // Every construction arc lies on one side of its centre: the side of its mid-angle.
            const Point& c = item.centre;
            const double r = s.DistanceTo(c);
            const double start = std::atan2(s.y - c.y, s.x - c.x);
            double sweep = std::atan2(e.y - c.y, e.x - c.x) - start;
            const double turn = 2 * std::acos(-1.0);
            if (item.ccw && sweep <= 0) sweep += turn;
            if (!item.ccw && sweep >= 0) sweep -= turn;
            const double side = std::cos(start + sweep / 2) >= 0 ? 1.0 : -1.0;
            return c.x + side * std::sqrt(std::max(0.0, r * r - Square(h - c.y)));
        }
        s = e;
    }
    return s.x;
}

}  // namespace shape
}  // namespace cadcam
