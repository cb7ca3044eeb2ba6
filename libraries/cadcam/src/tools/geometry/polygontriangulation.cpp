// Ear clipping with holes bridged to the outer loop.
#include "tools/geometry/polygontriangulation.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace cadcam {
namespace toolgeometry {
namespace {

using Point = tqTPoint2d<double>;

double Turn(const Point& a, const Point& b, const Point& c) { return (b - a).Cross(c - b); }

/// Whether p lies inside or on the counterclockwise triangle abc.
bool InTriangle(const Point& p, const Point& a, const Point& b, const Point& c) {
    return (b - a).Cross(p - a) >= 0 && (c - b).Cross(p - b) >= 0 && (a - c).Cross(p - c) >= 0;
}

/// Splices hole into polygon through a bridge from its rightmost vertex to a vertex of polygon it can see.
void Bridge(const std::vector<Point>& points, IndexLoop& polygon, const IndexLoop& hole) {
    std::size_t m = 0;
    for (std::size_t i = 1; i < hole.size(); ++i)
        if (points[hole[i]].x > points[hole[m]].x) m = i;
    const Point& mp = points[hole[m]];

    // The nearest edge the ray from M towards +x meets: in a counterclockwise loop it runs upwards. On it the
    // candidate P is the end met exactly, or else the end with the larger x.
    double nearest = std::numeric_limits<double>::infinity();
    std::size_t candidate = polygon.size();
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const std::size_t j = (i + 1) % polygon.size();
        const Point& a = points[polygon[i]];
        const Point& b = points[polygon[j]];
        if (!(a.y <= mp.y && mp.y <= b.y) || a.y == b.y) continue;
        const double x = a.y == mp.y ? a.x : b.y == mp.y ? b.x : a.x + (mp.y - a.y) * (b.x - a.x) / (b.y - a.y);
        if (x < mp.x || x >= nearest) continue;
        nearest = x;
        candidate = a.y == mp.y ? i : b.y == mp.y ? j : (a.x > b.x ? i : j);
    }
    if (candidate == polygon.size()) candidate = 0;  // a hole outside its polygon: bridge anywhere, stay closed

    // A reflex vertex inside the triangle M, I, P would hide P: take the one closest in angle to the ray.
    const Point intersection(nearest, mp.y);
    const Point p = points[polygon[candidate]];
    double bestTangent = std::numeric_limits<double>::infinity();
    if (std::isfinite(nearest) && p != intersection) {
        for (std::size_t i = 0; i < polygon.size(); ++i) {
            const Point& v = points[polygon[i]];
            const Point& prev = points[polygon[(i + polygon.size() - 1) % polygon.size()]];
            const Point& next = points[polygon[(i + 1) % polygon.size()]];
            if (i == candidate || Turn(prev, v, next) > 0 || v.x < mp.x) continue;
            const bool inside = p.y < mp.y ? InTriangle(v, mp, p, intersection) : InTriangle(v, mp, intersection, p);
            if (!inside) continue;
            const double tangent = std::fabs(v.y - mp.y) / std::max(v.x - mp.x, std::numeric_limits<double>::min());
            if (tangent < bestTangent) bestTangent = tangent, candidate = i;
        }
    }

    IndexLoop spliced;
    spliced.reserve(polygon.size() + hole.size() + 2);
    spliced.insert(spliced.end(), polygon.begin(), polygon.begin() + static_cast<std::ptrdiff_t>(candidate) + 1);
    for (std::size_t k = 0; k <= hole.size(); ++k) spliced.push_back(hole[(m + k) % hole.size()]);
    spliced.insert(spliced.end(), polygon.begin() + static_cast<std::ptrdiff_t>(candidate), polygon.end());
    polygon.swap(spliced);
}

}  // namespace

void TriangulatePolygon(const std::vector<Point>& points, const IndexLoop& outer, const std::vector<IndexLoop>& holes,
                        std::vector<std::array<Index, 3>>& triangles) {
    IndexLoop polygon = outer;
    std::vector<const IndexLoop*> ordered;
    for (const IndexLoop& hole : holes)
        if (hole.size() >= 3) ordered.push_back(&hole);
    // Rightmost holes first, so that a later bridge never crosses an earlier one.
    const auto rightmost = [&points](const IndexLoop* loop) {
        double x = -std::numeric_limits<double>::infinity();
        for (Index i : *loop) x = std::max(x, points[i].x);
        return x;
    };
    std::sort(ordered.begin(), ordered.end(),
              [&](const IndexLoop* a, const IndexLoop* b) { return rightmost(a) > rightmost(b); });
    for (const IndexLoop* hole : ordered) Bridge(points, polygon, *hole);

    std::size_t n = polygon.size();
    if (n < 3) return;
    std::vector<std::size_t> prev(n), next(n);
    for (std::size_t i = 0; i < n; ++i) prev[i] = (i + n - 1) % n, next[i] = (i + 1) % n;
    const auto at = [&](std::size_t i) -> const Point& { return points[polygon[i]]; };

    const auto isEar = [&](std::size_t b) {
        const std::size_t a = prev[b], c = next[b];
        if (!(Turn(at(a), at(b), at(c)) > 0)) return false;
        for (std::size_t v = next[c]; v != a; v = next[v]) {
            const Point& p = at(v);
            // Bridge ends stand twice in the loop; a copy of a corner does not block the ear.
            if (p == at(a) || p == at(b) || p == at(c)) continue;
            if (Turn(at(prev[v]), p, at(next[v])) > 0) continue;  // only a reflex or flat vertex can lie inside
            if (InTriangle(p, at(a), at(b), at(c))) return false;
        }
        return true;
    };

    std::size_t current = 0, sinceLastEar = 0;
    while (n > 3) {
        if (sinceLastEar > n) {
            // Rounding left no clean ear: clip the most convex corner so that the cap still closes.
            std::size_t best = current;
            double bestTurn = -std::numeric_limits<double>::infinity();
            std::size_t v = current;
            for (std::size_t k = 0; k < n; ++k, v = next[v]) {
                const double turn = Turn(at(prev[v]), at(v), at(next[v]));
                if (turn > bestTurn) bestTurn = turn, best = v;
            }
            current = best;
        } else if (!isEar(current)) {
            current = next[current];
            ++sinceLastEar;
            continue;
        }
        const std::size_t a = prev[current], c = next[current];
        triangles.push_back({polygon[a], polygon[current], polygon[c]});
        next[a] = c;
        prev[c] = a;
        --n;
        current = c;
        sinceLastEar = 0;
    }
    triangles.push_back({polygon[prev[current]], polygon[current], polygon[next[current]]});
}

}  // namespace toolgeometry
}  // namespace cadcam
