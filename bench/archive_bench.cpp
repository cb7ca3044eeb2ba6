// Saving and loading an archive with one 1,000,000-triangle mesh at the default level, each against a floor
// measured in the same run: plain zlib deflate (compress2, level 6) of the same STL bytes for the save, and
// inflate (uncompress) plus the binary STL parse of the same bytes for the load.
#include <benchmark/benchmark.h>
#include <stdlib.h>
#include <tinyxml.h>
#include <unistd.h>
#include <zlib.h>

#include <boost/filesystem.hpp>
#include <chrono>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "cadcam/stl/tqtstltranslator.h"
#include "misc/tqmemoryiostream.h"
#include "persistence/archive/archivedatareader.h"
#include "persistence/archive/archivedatawriter.h"

namespace {

using Translator = cadcam::tqTSTLTranslator<double>;
using Mesh = cadcam::tqTMesh<double>;
using Clock = std::chrono::steady_clock;

constexpr std::size_t kColumns = 1000, kRows = 500;  // two triangles per cell: 1,000,000 triangles
constexpr std::size_t kTriangles = 2 * kColumns * kRows;

/// A tessellated surface with shared vertices, as a mesh from a solid has them.
misc::tqAutoPointer<Mesh> SurfaceMesh() {
    static const misc::tqAutoPointer<Mesh> mesh = [] {
        misc::tqAutoPointer<Mesh> m(new Mesh());
        m->Reserve((kColumns + 1) * (kRows + 1), kTriangles);
        for (std::size_t r = 0; r <= kRows; ++r)
            for (std::size_t c = 0; c <= kColumns; ++c)
                m->AddVertex(
                    {0.137 * static_cast<double>(c), 0.211 * static_cast<double>(r),
                     5.0 * std::sin(0.01 * static_cast<double>(c)) * std::cos(0.013 * static_cast<double>(r))});
        for (std::size_t r = 0; r < kRows; ++r)
            for (std::size_t c = 0; c < kColumns; ++c) {
                const auto a = static_cast<std::uint32_t>(r * (kColumns + 1) + c), b = a + 1,
                           d = static_cast<std::uint32_t>(a + kColumns + 1), e = d + 1;
                m->AddTriangle(a, b, e, {0.0, 0.0, 1.0});
                m->AddTriangle(a, e, d, {0.0, -0.1, 0.99});
            }
        return m;
    }();
    return mesh;
}

const std::vector<unsigned char>& StlBytes() {
    static const std::vector<unsigned char> bytes = [] {
        misc::tqMemoryIOStream out(84 + 50 * kTriangles);
        Translator::WriteSTLStream(*SurfaceMesh(), out);
        return std::vector<unsigned char>(out.GetBuffer(), out.GetBuffer() + out.GetSize());
    }();
    return bytes;
}

void MakeDocument(TiXmlDocument& document) {
    document.LinkEndChild(new TiXmlDeclaration("1.0", "UTF-8", ""));
    auto* root = new TiXmlElement("WorkRig");
    root->SetAttribute("version", "2");
    root->SetAttribute("units", "METRIC");
    auto* mesh = new TiXmlElement("Mesh");
    mesh->SetAttribute("stlFile", "Meshes/Mesh_1.stl");
    root->LinkEndChild(mesh);
    document.LinkEndChild(root);
}

/// A folder of its own under the system's temporary folder.
struct Folder {
    std::string path;
    Folder() {
        std::string pattern = (boost::filesystem::temp_directory_path() / "tqarchivebench-XXXXXX").string();
        path = mkdtemp(&pattern[0]) != nullptr ? pattern : std::string();
    }
    ~Folder() {
        boost::system::error_code ignored;
        boost::filesystem::remove_all(path, ignored);
    }
};

double Seconds(Clock::time_point from, Clock::time_point to) {
    return std::chrono::duration<double>(to - from).count();
}

void Finish(benchmark::State& state, double total, double floor) {
    const double n = static_cast<double>(state.iterations());
    state.counters["ratio_to_floor"] = total / floor;
    state.counters["floor_ms"] = floor / n * 1e3;
    state.counters["triangles_per_s"] = benchmark::Counter(static_cast<double>(kTriangles) * n / total);
}

void BM_ArchiveWrite(benchmark::State& state) {
    const auto& stl = StlBytes();
    TiXmlDocument document;
    MakeDocument(document);
    const tqWorkRig::MeshList meshes{{u"Meshes/Mesh_1.stl", SurfaceMesh()}};
    Folder folder;
    const misc::tqstring target(folder.path + "/rig.wrg");
    std::vector<unsigned char> packed(compressBound(stl.size()));
    double total = 0, floor = 0;
    for (auto _ : state) {
        const auto t0 = Clock::now();
        uLongf size = packed.size();
        if (compress2(packed.data(), &size, stl.data(), stl.size(), 6) != Z_OK) state.SkipWithError("compress2");
        benchmark::ClobberMemory();
        const auto t1 = Clock::now();
        tqWorkRig::ArchiveDataWriter::Write(document, target, meshes, tqWorkRig::WorkRigFileWriter::Default);
        const auto t2 = Clock::now();
        floor += Seconds(t0, t1);
        total += Seconds(t1, t2);
        state.SetIterationTime(Seconds(t1, t2));
    }
    Finish(state, total, floor);
}

/// Both sides pay for fresh memory each time: the floor's inflate buffer and mesh, the load's member and mesh.
void BM_ArchiveRead(benchmark::State& state) {
    const auto& stl = StlBytes();
    TiXmlDocument document;
    MakeDocument(document);
    Folder folder;
    const misc::tqstring target(folder.path + "/rig.wrg");
    tqWorkRig::ArchiveDataWriter::Write(document, target, {{u"Meshes/Mesh_1.stl", SurfaceMesh()}},
                                        tqWorkRig::WorkRigFileWriter::Default);
    std::vector<unsigned char> packed(compressBound(stl.size()));
    uLongf packedSize = packed.size();
    compress2(packed.data(), &packedSize, stl.data(), stl.size(), 6);
    double total = 0, floor = 0;
    for (auto _ : state) {
        const auto t0 = Clock::now();
        {
            std::unique_ptr<unsigned char[]> bytes(new unsigned char[stl.size()]);
            uLongf size = stl.size();
            if (uncompress(bytes.get(), &size, packed.data(), packedSize) != Z_OK) state.SkipWithError("uncompress");
            misc::tqMemoryIOStream input(bytes.get(), size, size);
            Mesh mesh;
            Translator().ReadSTLStream(input, mesh);
            benchmark::DoNotOptimize(mesh.GetVertices()->data());
        }
        const auto t1 = Clock::now();
        {
            const auto data = tqWorkRig::ArchiveDataReader::Read(target);
            if (data->Mesh(u"Meshes/Mesh_1.stl")->GetTriangleCount() != kTriangles) state.SkipWithError("count");
        }
        const auto t2 = Clock::now();
        floor += Seconds(t0, t1);
        total += Seconds(t1, t2);
        state.SetIterationTime(Seconds(t1, t2));
    }
    Finish(state, total, floor);
}

}  // namespace

BENCHMARK(BM_ArchiveWrite)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(5.0);
BENCHMARK(BM_ArchiveRead)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(3.0);

BENCHMARK_MAIN();
