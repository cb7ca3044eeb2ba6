// Profiles as light paths: fillets, the heads, extend-and-clip, Drop and the conversion to contours.
#include "tools/shape/headpath.h"

#include <algorithm>
#include <cmath>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dline.h"

namespace cadcam {
namespace shape {
namespace {

double Square(double v) { return v * v; }

/// The signed angle from the start's to the end's direction about the centre, in (−π, π] radians.
double ShortSweep(const Point& start, const PathItem& item) {
    const Point a = start - item.centre;
    const Point b = item.end - item.centre;
    return std::atan2(a.Cross(b), a.Dot(b));
}

/// x where the item from s reaches the height h (s.y <= h <= item.end.y).
double CutX(const Point& s, const PathItem& item, double h) {
    const Point& e = item.end;
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

HeadPath RoundedCorner::Path() const {
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

RoundedCorner MakeRoundedCorner(std::vector<Point> points, std::size_t corner, int type, double cornerRadius) {
    RoundedCorner r;
    r.fillet = MakeCornerFillet(points[corner - 1], points[corner], points[corner + 1], type, cornerRadius);
    r.points = std::move(points);
    r.corner = corner;
    return r;
}

HeadPath CylinderHead(double radius, double height) {
    HeadPath path;
    path.LineTo(Point(radius, 0));
    path.LineTo(Point(radius, height));
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

HeadPath ExtendAndClip(const HeadPath& path, double h) {
    HeadPath clipped(path.start);
    Point s = path.start;
    for (const PathItem& item : path.items) {
        clipped.items.push_back(item);
        if (item.end.y >= h) {
            if (item.end.y != h) clipped.items.back().end = Point(CutX(s, item, h), h);
            return clipped;
        }
        s = item.end;
    }
    clipped.LineTo(Point(s.x, h));
    return clipped;
}

void Drop(HeadPath& path) {
    double size = std::max(std::fabs(path.start.x), std::fabs(path.start.y));
    for (const PathItem& item : path.items) {
        size = std::max({size, std::fabs(item.end.x), std::fabs(item.end.y)});
        if (item.arc) size = std::max({size, std::fabs(item.centre.x), std::fabs(item.centre.y)});
    }
    const double epsilon = Epsilon(size);
    std::vector<PathItem>& items = path.items;
    for (std::size_t i = 0; i < items.size();) {
        const Point& s = i == 0 ? path.start : items[i - 1].end;
        const PathItem& item = items[i];
        // An arc no larger than ε is a fillet rounding up to nothing, which the profile rules would refuse.
        const bool degenerate = item.arc
                                    ? s.DistanceTo(item.centre) <= epsilon || std::fabs(ShortSweep(s, item)) <= 1e-12
                                    : s.DistanceTo(item.end) < epsilon;
        if (!degenerate) {
            ++i;
            continue;
        }
        if (i > 0 && i + 1 == items.size()) items[i - 1].end = item.end;
        items.erase(items.begin() + static_cast<std::ptrdiff_t>(i));
    }
}

tq2dContour<double> ToContour(const HeadPath& path) {
    tq2dContour<double> contour;
    Point s = path.start;
    for (const PathItem& item : path.items) {
        if (item.arc) {
            const tqArcDirection direction = item.ccw ? tqArcDirection::Counterclockwise : tqArcDirection::Clockwise;
            contour.Append(tq2dContour<double>::Item(new tq2dArc<double>(s, item.end, item.centre, direction)));
        } else {
            contour.Append(tq2dContour<double>::Item(new tq2dLine<double>(s, item.end)));
        }
        s = item.end;
    }
    return contour;
}

HeadPath PathOf(const tq2dContour<double>& contour, double dy) {
    const Point shift(0, dy);
    HeadPath path;
    bool started = false;
    for (const tq2dContour<double>::Item& item : contour) {
        if (const auto line = item.DynamicCast<tq2dLine<double>>(); line.IsNotNull()) {
            if (!started) path.start = line->GetStart() + shift;
            path.LineTo(line->GetEnd() + shift);
        } else if (const auto arc = item.DynamicCast<tq2dArc<double>>(); arc.IsNotNull()) {
            if (!started) path.start = arc->GetStart() + shift;
            path.ArcTo(arc->GetEnd() + shift, arc->GetCentre() + shift, arc->IsCounterclockwise());
        } else {
            continue;
        }
        started = true;
    }
    return path;
}

RoundedCorner FaceHead(double diameter, double fluteLength, double cornerRadius, int cornerRadiusType,
                       double outsideDiameter, double taperAngle) {
    const double radius = diameter / 2;
    const double outsideRadius = outsideDiameter / 2;
    const double leadHeight = (outsideRadius - radius) / TanDegrees(taperAngle);
    return MakeRoundedCorner(FaceHeadPoints(radius, outsideRadius, leadHeight, fluteLength), 1, cornerRadiusType,
                             cornerRadius);
}

RoundedCorner UndercutHead(double diameter, double fluteLength, double cornerRadius, int cornerRadiusType,
                           double taperAngle) {
    const double radius = diameter / 2;
    return MakeRoundedCorner(
        {Point(0, 0), Point(radius, 0), Point(radius - fluteLength * TanDegrees(taperAngle), fluteLength)}, 1,
        cornerRadiusType, cornerRadius);
}

}  // namespace shape
}  // namespace cadcam
