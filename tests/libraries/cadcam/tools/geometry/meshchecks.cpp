// Closedness, orientation, sharing and volume of a triangle mesh.
#include "meshchecks.h"

#include <algorithm>
#include <numeric>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace tqtest {

double SignedVolume(const cadcam::tqTMesh<double>& mesh) {
    double sum = 0;
    for (std::size_t t = 0; t < mesh.GetTriangleCount(); ++t)
        sum += mesh.Corner(t, 0).Dot(mesh.Corner(t, 1).Cross(mesh.Corner(t, 2)));
    return sum / 6;
}

std::string MeshDefects(const cadcam::tqTMesh<double>& mesh) {
    std::string defects;
    const auto& vertices = *mesh.GetVertices();
    std::unordered_map<std::uint64_t, int> directed;
    std::vector<std::size_t> shell(vertices.size());  // union-find over the triangles' vertices
    std::iota(shell.begin(), shell.end(), 0);
    const auto root = [&shell](std::size_t v) {
        while (shell[v] != v) v = shell[v] = shell[shell[v]];
        return v;
    };
    for (const auto& t : *mesh.GetTriangles()) {
        if (t.v[0] == t.v[1] || t.v[1] == t.v[2] || t.v[0] == t.v[2]) defects += "a triangle repeats a vertex; ";
        for (int k = 0; k < 3; ++k) {
            ++directed[(std::uint64_t{t.v[k]} << 32) | t.v[(k + 1) % 3]];
            shell[root(t.v[k])] = root(t.v[(k + 1) % 3]);
        }
    }
    for (const auto& edge : directed) {
        const auto opposite = directed.find((edge.first << 32) | (edge.first >> 32));
        if (edge.second != 1 || opposite == directed.end() || opposite->second != 1) {
            defects += "an edge is not in exactly two opposite triangles; ";
            break;
        }
    }
    std::vector<std::tuple<std::size_t, double, double, double>> places;
    for (std::size_t v = 0; v < vertices.size(); ++v)
        places.emplace_back(root(v), vertices[v].x, vertices[v].y, vertices[v].z);
    std::sort(places.begin(), places.end());
    if (std::adjacent_find(places.begin(), places.end()) != places.end()) defects += "a vertex is copied, not shared; ";
    if (!(SignedVolume(mesh) > 0)) defects += "the volume is not positive; ";
    return defects;
}

}  // namespace tqtest
