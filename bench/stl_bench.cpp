// Binary STL write and read of a 1,000,000-triangle mesh against a floor measured in the same run: the plain
// double -> float (write) and float -> double (read) conversion of the same triangles in memory.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

#include "cadcam/stl/tqtstltranslator.h"
#include "misc/tqmemoryiostream.h"

namespace {

using Translator = cadcam::tqTSTLTranslator<double>;
using Mesh = cadcam::tqTMesh<double>;
using Clock = std::chrono::steady_clock;

constexpr std::size_t kColumns = 1000, kRows = 500;  // two triangles per cell: 1,000,000 triangles
constexpr std::size_t kTriangles = 2 * kColumns * kRows;

/// A tessellated surface: shared vertices, as a mesh from a solid has them.
const Mesh& SurfaceMesh() {
    static const Mesh mesh = [] {
        Mesh m;
        m.Reserve((kColumns + 1) * (kRows + 1), kTriangles);
        for (std::size_t r = 0; r <= kRows; ++r)
            for (std::size_t c = 0; c <= kColumns; ++c)
                m.AddVertex({0.137 * c, 0.211 * r, 5.0 * std::sin(0.01 * c) * std::cos(0.013 * r)});
        for (std::size_t r = 0; r < kRows; ++r)
            for (std::size_t c = 0; c < kColumns; ++c) {
                const auto a = static_cast<std::uint32_t>(r * (kColumns + 1) + c), b = a + 1,
                           d = static_cast<std::uint32_t>(a + kColumns + 1), e = d + 1;
                m.AddTriangle(a, b, e, {0.0, 0.0, 1.0});
                m.AddTriangle(a, e, d, {0.0, -0.1, 0.99});
            }
        return m;
    }();
    return mesh;
}

/// Write floor: each triangle's normal and corners, converted to 12 floats.
void ConvertToFloat(const Mesh& mesh, float* out) {
    const auto& vertices = *mesh.GetVertices();
    const auto put = [](float* to, const cadcam::tqPoint3d& p) {
        to[0] = static_cast<float>(p.x);
        to[1] = static_cast<float>(p.y);
        to[2] = static_cast<float>(p.z);
    };
    for (const auto& t : *mesh.GetTriangles()) {
        put(out, t.normal);
        put(out + 3, vertices[t.v[0]]);
        put(out + 6, vertices[t.v[1]]);
        put(out + 9, vertices[t.v[2]]);
        out += 12;
    }
}

/// Read floor: 12 floats per triangle back to doubles.
void ConvertToDouble(const float* in, double* out, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) out[i] = static_cast<double>(in[i]);
}

double Seconds(Clock::time_point from, Clock::time_point to) {
    return std::chrono::duration<double>(to - from).count();
}

void Finish(benchmark::State& state, double total, double floor) {
    const double n = static_cast<double>(state.iterations());
    state.counters["ratio_to_floor"] = total / floor;
    state.counters["floor_ms"] = floor / n * 1e3;
    state.counters["triangles_per_s"] = benchmark::Counter(static_cast<double>(kTriangles) * n / total);
}

void BM_STLWriteBinary(benchmark::State& state) {
    const Mesh& mesh = SurfaceMesh();
    misc::tqMemoryIOStream output(84 + 50 * kTriangles);
    std::vector<float> floats(12 * kTriangles);
    double total = 0, floor = 0;
    for (auto _ : state) {
        const auto t0 = Clock::now();
        ConvertToFloat(mesh, floats.data());
        benchmark::DoNotOptimize(floats.data());
        benchmark::ClobberMemory();
        const auto t1 = Clock::now();
        output.Seek(0);
        Translator::WriteSTLStream(mesh, output);
        benchmark::ClobberMemory();
        const auto t2 = Clock::now();
        floor += Seconds(t0, t1);
        total += Seconds(t1, t2);
        state.SetIterationTime(Seconds(t1, t2));
    }
    if (output.GetSize() != 84 + 50 * kTriangles) state.SkipWithError("wrong size");
    Finish(state, total, floor);
}

/// Reads into a new mesh each time, against a floor that converts into new memory each time: both pay for
/// fresh pages, which on this kind of machine costs more than the conversion itself.
void BM_STLReadBinary(benchmark::State& state) {
    misc::tqMemoryIOStream input(84 + 50 * kTriangles);
    Translator::WriteSTLStream(SurfaceMesh(), input);
    std::vector<float> floats(12 * kTriangles);
    ConvertToFloat(SurfaceMesh(), floats.data());
    double total = 0, floor = 0;
    for (auto _ : state) {
        const auto t0 = Clock::now();
        {
            std::unique_ptr<double[]> doubles(new double[floats.size()]);
            ConvertToDouble(floats.data(), doubles.get(), floats.size());
            benchmark::DoNotOptimize(doubles.get());
            benchmark::ClobberMemory();
        }
        const auto t1 = Clock::now();
        {
            Mesh mesh;
            input.Seek(0);
            Translator().ReadSTLStream(input, mesh);
            benchmark::DoNotOptimize(mesh.GetVertices()->data());
            const auto t2 = Clock::now();
            floor += Seconds(t0, t1);
            total += Seconds(t1, t2);
            state.SetIterationTime(Seconds(t1, t2));
            if (mesh.GetTriangleCount() != kTriangles) state.SkipWithError("wrong count");
        }
    }
    Finish(state, total, floor);
}

/// Reads into a mesh whose arrays keep their capacity, against a floor that converts into a warm array.
void BM_STLReadBinaryReusedMesh(benchmark::State& state) {
    misc::tqMemoryIOStream input(84 + 50 * kTriangles);
    Translator::WriteSTLStream(SurfaceMesh(), input);
    std::vector<float> floats(12 * kTriangles);
    ConvertToFloat(SurfaceMesh(), floats.data());
    std::vector<double> doubles(12 * kTriangles);
    Mesh mesh;
    double total = 0, floor = 0;
    for (auto _ : state) {
        const auto t0 = Clock::now();
        ConvertToDouble(floats.data(), doubles.data(), floats.size());
        benchmark::DoNotOptimize(doubles.data());
        benchmark::ClobberMemory();
        const auto t1 = Clock::now();
        mesh.GetVertices()->clear();
        mesh.GetTriangles()->clear();
        input.Seek(0);
        Translator().ReadSTLStream(input, mesh);
        benchmark::DoNotOptimize(mesh.GetVertices()->data());
        const auto t2 = Clock::now();
        floor += Seconds(t0, t1);
        total += Seconds(t1, t2);
        state.SetIterationTime(Seconds(t1, t2));
    }
    if (mesh.GetTriangleCount() != kTriangles) state.SkipWithError("wrong count");
    Finish(state, total, floor);
}

}  // namespace

BENCHMARK(BM_STLWriteBinary)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_STLReadBinary)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_STLReadBinaryReusedMesh)->UseManualTime()->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
