// Tessellation of catalogue tools, part by part, against a floor measured in the same run: copying the same
// vertices and triangles into fresh meshes through the mesh's own interface.
#include <benchmark/benchmark.h>

#include <chrono>
#include <vector>

#include "cadcam/tools/barrel/tqbarrelmill.h"
#include "cadcam/tools/geometry/tqsoliddefinitionmeshcreator.h"
#include "cadcam/tools/geometry/tqtooltogenerictoolconverter.h"
#include "cadcam/tools/other/tqgenerictool.h"
#include "cadcam/tools/parts/tqdefaulttoolparts.h"
#include "cadcam/tools/parts/tqtoolpartdefinition.h"
#include "cadcam/tools/revolved/tqendmill.h"

namespace {

using Clock = std::chrono::steady_clock;
using Mesh = cadcam::tqTMesh<double>;
using MeshPointer = misc::tqAutoPointer<Mesh>;
using Parts = cadcam::tqDefaultToolParts;
constexpr auto kMetric = measures::tqUnitsFactory::Metric;

/// The solids of every part of the tool's generic form: holder, arbor, shank and flutes.
std::vector<const cadcam::tqSolidDefinition<double>*> SolidsOf(const cadcam::tqTool& tool,
                                                               misc::tqAutoPointer<cadcam::tqGenericTool>& keep) {
    keep = cadcam::tqToolToGenericToolConverter::Convert(tool);
    std::vector<const cadcam::tqSolidDefinition<double>*> solids;
    for (const auto* group :
         {&keep->GetHolderGroup(), &keep->GetArborGroup(), &keep->GetNonCuttingGroup(), &keep->GetCuttingGroup()})
        for (const auto& element : *group) solids.push_back(element.m_part->GetSolid().Get());
    return solids;
}

MeshPointer CopyOf(const Mesh& mesh) {
    MeshPointer copy(new Mesh(mesh.GetUnits()));
    copy->Reserve(mesh.GetVertexCount(), mesh.GetTriangleCount());
    for (const auto& v : *mesh.GetVertices()) copy->AddVertex(v);
    for (const auto& t : *mesh.GetTriangles()) copy->AddTriangle(t.v[0], t.v[1], t.v[2], t.normal);
    return copy;
}

double Seconds(Clock::time_point from, Clock::time_point to) {
    return std::chrono::duration<double>(to - from).count();
}

/// Range 0 is the relative tolerance in units of 1e-4 (100 is the library's 0.01).
void Tessellate(benchmark::State& state, const cadcam::tqTool& tool) {
    const double relTol = static_cast<double>(state.range(0)) * 1e-4;
    misc::tqAutoPointer<cadcam::tqGenericTool> generic;
    const auto solids = SolidsOf(tool, generic);
    std::vector<MeshPointer> meshes(solids.size());
    std::size_t triangles = 0;
    double total = 0, floor = 0;
    for (auto _ : state) {
        const auto t0 = Clock::now();
        for (std::size_t i = 0; i < solids.size(); ++i)
            meshes[i] = cadcam::tqSolidDefinitionMeshCreator::Create(*solids[i], 0.0, relTol);
        benchmark::ClobberMemory();
        const auto t1 = Clock::now();
        triangles = 0;
        for (const MeshPointer& mesh : meshes) {
            MeshPointer copy = CopyOf(*mesh);
            benchmark::DoNotOptimize(copy->GetTriangles()->data());
            triangles += mesh->GetTriangleCount();
        }
        benchmark::ClobberMemory();
        const auto t2 = Clock::now();
        total += Seconds(t0, t1);
        floor += Seconds(t1, t2);
        state.SetIterationTime(Seconds(t0, t1));
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["triangles"] = static_cast<double>(triangles);
    state.counters["triangles_per_s"] = benchmark::Counter(static_cast<double>(triangles) * n / total);
    state.counters["ratio_to_floor"] = total / floor;
}

void BM_TessellateEndMillWithHolderAndArbor(benchmark::State& state) {
    const cadcam::tqEndMill mill(kMetric, Parts::MillingArbor(kMetric), Parts::MillingHolder(kMetric), 10, 20, 40);
    Tessellate(state, mill);
}

void BM_TessellateBarrelMill(benchmark::State& state) {
    const cadcam::tqBarrelMill mill(kMetric, Parts::MillingArbor(kMetric), Parts::MillingHolder(kMetric), 10, 20, 40, 6,
                                    1, 30);
    Tessellate(state, mill);
}

}  // namespace

BENCHMARK(BM_TessellateEndMillWithHolderAndArbor)->Arg(100)->Arg(1)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_TessellateBarrelMill)->Arg(100)->Arg(1)->UseManualTime()->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
