// tqTSTLTranslator: exact binary bytes, narrowing, piecewise and block writers, detection, text, failures, fuzzing.
#include "cadcam/stl/tqtstltranslator.h"

#include <unistd.h>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <new>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "misc/tqbinstream.h"
#include "misc/tqmemoryiostream.h"
#include "support/tqtest.h"

// Records the largest allocation, so hostile counts can be shown to reserve nothing. Every new and delete here
// meet in malloc and free, which the compiler cannot see.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
static std::size_t g_largestAllocation = 0;
void* operator new(std::size_t size) {
    if (size > g_largestAllocation) g_largestAllocation = size;
    if (void* p = std::malloc(size > 0 ? size : 1)) return p;
    throw std::bad_alloc();
}
void* operator new[](std::size_t size) { return operator new(size); }
void operator delete(void* p) noexcept { std::free(p); }
void operator delete[](void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }
void operator delete[](void* p, std::size_t) noexcept { std::free(p); }
#pragma GCC diagnostic pop

namespace {

using Translator = cadcam::tqTSTLTranslator<double>;
using Mesh = cadcam::tqTMesh<double>;
using P = cadcam::tqPoint3d;
using Reader = void (Translator::*)(misc::tqBinInputStream&, Mesh&) const;

const char* kInvalidFormat = "Invalid .stl file format!";
const char* kInvalidCount = "Invalid number of triangles found in .stl file!";
const char* kUnexpectedEnd = "Unexpected end of input stream occurred when reading .stl file";
const char* kUnknown = "Unknown keyword found while parsing .stl file";
const std::size_t kUnsized = std::size_t(1) << 20;  // a piece size that hands out everything at once

/// Keeps every byte and the size of every Write call.
struct RecordingStream : misc::tqBinOutputStream {
    std::string bytes;
    std::vector<std::uint64_t> sizes;
    void Write(const void* source, std::uint64_t count) override {
        bytes.append(static_cast<const char*>(source), static_cast<std::size_t>(count));
        sizes.push_back(count);
    }
};

/// An input stream that does not know its size and hands out at most `piece` bytes per call.
struct PlainStream : misc::tqBinInputStream {
    PlainStream(std::string data, std::size_t piece) : m_data(std::move(data)), m_piece(piece) {}
    void Read(void* destination, std::uint64_t& count) override {
        count = std::min<std::uint64_t>({count, m_piece, m_data.size() - m_at});
        std::memcpy(destination, m_data.data() + m_at, count);
        m_at += count;
    }
    std::string m_data;
    std::size_t m_piece, m_at = 0;
};

/// What the block writer (or the text writer) makes of mesh.
std::string Written(const Mesh& mesh, bool text = false) {
    RecordingStream out;
    text ? Translator::WriteASTLStream(mesh, out) : Translator::WriteSTLStream(mesh, out);
    return out.bytes;
}

/// Reads into mesh from a stream that knows its size (piece 0) or from one handing out piece bytes per call.
Mesh& ReadInto(Mesh& mesh, std::string bytes, std::size_t piece = 0, Reader read = &Translator::ReadSTLStream,
               const Translator& translator = Translator()) {
    misc::tqMemoryIOStream sized(&bytes[0], bytes.size(), bytes.size());
    PlainStream plain(bytes, piece);
    (translator.*read)(piece == 0 ? static_cast<misc::tqBinInputStream&>(sized) : plain, mesh);
    return mesh;
}

Mesh Read(std::string bytes, std::size_t piece = 0, Reader read = &Translator::ReadSTLStream) {
    Mesh mesh;
    return ReadInto(mesh, std::move(bytes), piece, read);
}

/// The bytes of these floats as stored.
std::string Floats(std::initializer_list<float> values) {
    return std::string(reinterpret_cast<const char*>(values.begin()), 4 * values.size());
}

/// A binary file whose count field says `count`, holding `records` records.
std::string BinaryFile(std::int32_t count, std::size_t records, const std::string& header = "STL File") {
    std::string bytes = header + std::string(80 - header.size(), ' ') + std::string(reinterpret_cast<char*>(&count), 4);
    for (std::size_t i = 0; i < records; ++i)
        bytes += Floats({0, 0, 1, float(i), 0, 0, 1, float(i), 0, 0, 1, 0}) + std::string(2, '\0');
    return bytes;
}

/// Triangles over shared vertices, in a scattered order, with varied magnitudes.
Mesh SharedMesh(std::size_t triangles, unsigned seed) {
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> value(-1000.0, 1000.0);
    Mesh mesh;
    const std::size_t vertices = triangles / 2 + 3;
    for (std::size_t i = 0; i < vertices; ++i)
        mesh.AddVertex(P(value(random), value(random) * 1e-3, value(random) * 1e30));
    std::uniform_int_distribution<std::uint32_t> index(0, static_cast<std::uint32_t>(vertices - 1));
    for (std::size_t i = 0; i < triangles; ++i)
        mesh.AddTriangle(index(random), index(random), index(random), P(value(random), value(random), value(random)));
    return mesh;
}

std::string Slurp(const std::string& path) {
    std::ostringstream out;
    out << std::ifstream(path, std::ios::binary).rdbuf();
    return out.str();
}

std::string TempPath(const std::string& name) {
    return (std::filesystem::temp_directory_path() / ("tqstl_" + std::to_string(::getpid()) + "_" + name)).string();
}

}  // namespace

TEST(TqTSTLTranslatorWrite, BinaryBytesAndNarrowing) {
    const std::string empty = Written(Mesh());
    ASSERT_EQ(empty.size(), 84u);
    EXPECT_EQ(empty, "STL File" + std::string(72, ' ') + std::string(4, '\0'));
    RecordingStream header;
    Translator::WriteSTLHeader(header);
    EXPECT_EQ(header.bytes, empty.substr(0, 80));
    EXPECT_EQ(header.sizes, std::vector<std::uint64_t>{80});

    Mesh mesh;
    for (const P& p : {P(7, 8, 9), P(1, 2, 3), P(4, 5, 6)}) mesh.AddVertex(p);
    mesh.AddTriangle(1, 2, 0, P(0.5, -0.25, 3));  // the stored normal is written, not a computed one
    const std::string bytes = Written(mesh);
    EXPECT_EQ(bytes.substr(80), std::string("\x01\0\0\0", 4) + Floats({0.5f, -0.25f, 3, 1, 2, 3, 4, 5, 6, 7, 8, 9}) +
                                    std::string(2, '\0'));
    EXPECT_EQ(bytes.substr(84, 4), std::string("\0\0\0\x3f", 4));  // little-endian 0.5f

    const float clamp = static_cast<float>(3.0000000054977558e+38);  // tighter than the float's own limit
    const double cases[][2] = {{1e39, clamp}, {-1e39, -clamp}, {3.1e38, clamp},
                               {1e-39, 0},    {0.1, 0.1f},     {1.1754943508222875e-38, 1.1754943508222875e-38f}};
    for (const auto& c : cases) EXPECT_EQ(Translator::Narrow(c[0]), static_cast<float>(c[1])) << c[0];
    EXPECT_FALSE(std::signbit(Translator::Narrow(-1e-39)));
    EXPECT_TRUE(std::isnan(Translator::Narrow(std::nan(""))));
    EXPECT_EQ(cadcam::tqTSTLTranslator<float>::Narrow(1e-40f), 0.0f);
    EXPECT_EQ(cadcam::tqTSTLTranslator<float>::Narrow(3.3e38f), clamp);
    Mesh extreme;
    extreme.AddTriangle(P(1e-39, 1e39, -1e39), P(), P(), P());
    EXPECT_EQ(Written(extreme).substr(96, 12), Floats({0, clamp, -clamp}));
}

TEST(TqTSTLTranslatorWrite, PiecewiseWritesOnePiecePerFieldAndMatchesTheBlockWriter) {
    const Mesh mesh = SharedMesh(20000, 7);  // more than one block of the block writer
    RecordingStream piecewise, block, data;
    Translator::WriteSTLStreamPiecewise(mesh, piecewise);
    Translator::WriteSTLStream(mesh, block);
    Translator::WriteSTLData(mesh, data);
    ASSERT_EQ(piecewise.sizes.size(), 2 + 5 * mesh.GetTriangleCount());
    EXPECT_EQ(piecewise.sizes[0], 80u);
    EXPECT_EQ(piecewise.sizes[1], 4u);
    for (std::size_t i = 2; i < piecewise.sizes.size(); i += 5)
        ASSERT_EQ(std::vector<std::uint64_t>(piecewise.sizes.begin() + i, piecewise.sizes.begin() + i + 5),
                  (std::vector<std::uint64_t>{12, 12, 12, 12, 2}));
    EXPECT_EQ(block.bytes, piecewise.bytes);
    EXPECT_LT(block.sizes.size(), 10u);
    EXPECT_EQ(data.bytes, piecewise.bytes.substr(80));
}

TEST(TqTSTLTranslatorWrite, MeshesTheFormatCannotHoldAreRefusedBeforeAnyByte) {
    Mesh mesh;
    mesh.AddTriangle(P(), P(), P(), P());
    mesh.AddTriangle(0, 1, 7, P());
    for (auto write : {&Translator::WriteSTLStream, &Translator::WriteSTLStreamPiecewise, &Translator::WriteSTLData,
                       &Translator::WriteASTLStream}) {
        RecordingStream out;
        EXPECT_THROW_MSG(write(mesh, out), misc::tqSTLParserException,
                         "Can not use a mesh whose triangle 1 refers to missing vertex 7 to write an STL file.");
        EXPECT_TRUE(out.bytes.empty());
    }
    Mesh noTriangles;
    noTriangles.GetTriangles() = misc::tqAutoPointer<std::vector<Mesh::Triangle>>();
    EXPECT_THROW_MSG(Written(noTriangles), misc::tqException, "Accessing TQ_NULL pointer");
}

TEST(TqTSTLTranslatorWrite, TextLayoutAndRoundTrip) {
    Mesh mesh;
    mesh.AddTriangle(P(0, 0.1, -2), P(1e-39, 1e39, 123456789), P(0.5, 1, 1.5), P(0, 0, 1));
    EXPECT_EQ(Written(mesh, true),
              "solid ascii\n"
              "  facet normal 0 0 1\n"
              "    outer loop\n"
              "      vertex 0 0.1 -2\n"
              "      vertex 0 3e+38 123456792\n"
              "      vertex 0.5 1 1.5\n"
              "    endloop\n"
              "  endfacet\n"
              "endsolid\n");
    EXPECT_EQ(Written(Mesh(), true), "solid ascii\nendsolid\n");
    // Every number reads back as the same float.
    const Mesh source = SharedMesh(3000, 5);
    EXPECT_EQ(Written(Read(Written(source, true), 0, &Translator::ParseASTLStream)), Written(source));
}

TEST(TqTSTLTranslatorRead, BinaryRoundTripAppendsThreeVerticesPerTriangle) {
    const Mesh source = SharedMesh(300, 11);
    const std::string bytes = Written(source);
    Mesh mesh;
    mesh.AddTriangle(P(1, 1, 1), P(2, 2, 2), P(3, 3, 3), P(0, 0, 1));  // existing content stays in front
    ReadInto(mesh, bytes);
    ASSERT_EQ(mesh.GetTriangleCount(), 301u);
    ASSERT_EQ(mesh.GetVertexCount(), 903u);
    EXPECT_EQ(mesh.Corner(0, 2), P(3, 3, 3));
    for (std::uint32_t i = 1; i <= 300; ++i) {
        const auto& v = (*mesh.GetTriangles())[i].v;
        ASSERT_TRUE(v[0] == 3 * i && v[1] == 3 * i + 1 && v[2] == 3 * i + 2) << i;
    }
    const P& c = source.Corner(0, 1);
    EXPECT_EQ(mesh.Corner(1, 1), P(Translator::Narrow(c.x), Translator::Narrow(c.y), Translator::Narrow(c.z)));
    EXPECT_EQ(Written(mesh).substr(134), bytes.substr(84));  // every normal and corner as written
    EXPECT_EQ(Written(Read(bytes, 7, &Translator::ParseSTLStream)), bytes);
}

TEST(TqTSTLTranslatorRead, FloatMeshesRoundTripExactly) {
    using FloatTranslator = cadcam::tqTSTLTranslator<float>;
    cadcam::tqTMesh<float> mesh;
    mesh.AddTriangle({0.1f, 2.5e-7f, -3e30f}, {1, 2, 3}, {4, 5, 6}, {0, 0, 1});
    for (bool text : {false, true}) {
        RecordingStream out;
        text ? FloatTranslator::WriteASTLStream(mesh, out) : FloatTranslator::WriteSTLStream(mesh, out);
        misc::tqMemoryIOStream input(&out.bytes[0], out.bytes.size(), out.bytes.size());
        cadcam::tqTMesh<float> back;
        FloatTranslator().ReadSTLStream(input, back);
        ASSERT_EQ(back.GetTriangleCount(), 1u);
        for (int k = 0; k < 3; ++k) EXPECT_EQ(back.Corner(0, k), mesh.Corner(0, k)) << text;
    }
}

TEST(TqTSTLTranslatorRead, BinaryWhoseHeaderBeginsWithSolidIsReadAsBinary) {
    const std::string bytes = BinaryFile(3, 3, "solid made by another program");
    EXPECT_EQ(Read(bytes).GetTriangleCount(), 3u);
    EXPECT_EQ(Read(bytes, 5).GetTriangleCount(), 3u);
    EXPECT_EQ(Read(BinaryFile(0, 0, "solid")).GetTriangleCount(), 0u);
    // The count no longer fits the size: then "solid" makes it text, which it is not.
    EXPECT_THROW_MSG(Read(BinaryFile(4, 3, "solid x\nfoo")), misc::tqSTLParserException, kUnknown);
}

TEST(TqTSTLTranslatorRead, TextSpellingsReadAlike) {
    // Two facets closed by "endloop" and "endfacet", the same closed by "end loop" and "end facet", and the same
    // in mixed case with "OUTERLOOP", CR LF line ends and signed numbers.
    const std::string dir = std::string(TQ_TEST_DATA_DIR) + "/stl/";
    const Mesh a = Read(Slurp(dir + "two_facets_endloop.stl"));
    const std::string bytes = Written(a);
    ASSERT_EQ(a.GetTriangleCount(), 2u);
    EXPECT_EQ(a.Corner(1, 2), P(1.5, -22.5, 0.03));
    EXPECT_EQ(a.Corner(1, 1), P(0, 1, 0));
    EXPECT_EQ((*a.GetTriangles())[1].normal, P(0, 0, -1));
    EXPECT_EQ(Written(Read(Slurp(dir + "two_facets_end_loop.stl"))), bytes);
    EXPECT_EQ(Written(Read(Slurp(dir + "two_facets_upper_crlf.stl"), 3)), bytes);
}

TEST(TqTSTLTranslatorRead, TruncatedMiscountedAndGarbageData) {
    const std::string whole = BinaryFile(4, 4);
    for (std::size_t cut : {84u, 100u, 183u, 233u}) {
        SCOPED_TRACE(cut);
        EXPECT_THROW_MSG(Read(whole.substr(0, cut)), misc::tqSTLParserException, kInvalidCount);
        // A failed read leaves what the mesh held before.
        Mesh mesh;
        mesh.AddTriangle(P(1, 1, 1), P(2, 2, 2), P(3, 3, 3), P(0, 0, 1));
        EXPECT_THROW_MSG(ReadInto(mesh, whole.substr(0, cut), kUnsized), misc::tqSTLParserException, kUnexpectedEnd);
        EXPECT_THROW_MSG(ReadInto(mesh, whole.substr(0, cut), kUnsized, &Translator::ParseSTLStream),
                         misc::tqSTLParserException, kUnexpectedEnd);
        EXPECT_EQ(mesh.GetTriangleCount(), 1u);
        EXPECT_EQ(mesh.GetVertexCount(), 3u);
    }
    EXPECT_THROW_MSG(Read(whole + "x"), misc::tqSTLParserException, kInvalidCount);
    EXPECT_THROW_MSG(Read(BinaryFile(-1, 0)), misc::tqSTLParserException, kInvalidCount);
    EXPECT_THROW_MSG(Read(whole.substr(0, 50), kUnsized, &Translator::ParseSTLStream), misc::tqSTLParserException,
                     kUnexpectedEnd);
    for (const std::string& bytes : {std::string(), std::string("x"), std::string(83, '\x7f'), std::string("soli")})
        EXPECT_THROW_MSG(Read(bytes), misc::tqSTLParserException, kInvalidFormat);
    EXPECT_THROW_MSG(Read(std::string(50, 'g'), kUnsized), misc::tqSTLParserException, kInvalidFormat);
    // Long enough for a binary header, but its count does not fit.
    EXPECT_THROW_MSG(Read(std::string(1000, 'g')), misc::tqSTLParserException, kInvalidCount);
    EXPECT_THROW_MSG(Read("solid\n" + std::string(500, '\x01') + "\n"), misc::tqSTLParserException, kUnknown);
}

TEST(TqTSTLTranslatorRead, HostileCountFailsWithoutAHugeAllocation) {
    g_largestAllocation = 0;
    for (const std::int32_t count : {0x7fffffff, 0x40000000}) {
        std::string bytes = BinaryFile(count, 2);
        bytes.resize(200, '\0');
        EXPECT_THROW_MSG(Read(bytes), misc::tqSTLParserException, kInvalidCount);
        // Unsized, the count is believed only as far as records arrive; more vertices than 32-bit indices can
        // reach are refused at once.
        const char* text = count == 0x7fffffff ? kInvalidCount : kUnexpectedEnd;
        EXPECT_THROW_MSG(Read(bytes, kUnsized), misc::tqSTLParserException, text);
        EXPECT_THROW_MSG(Read(bytes, kUnsized, &Translator::ParseSTLStream), misc::tqSTLParserException, text);
    }
    EXPECT_LT(g_largestAllocation, std::size_t(4) << 20);
}

TEST(TqTSTLTranslatorRead, ProgressIsReportedByPhaseAtABoundedRate) {
    std::vector<std::pair<std::string, double>> calls;
    const Translator translator(
        [&calls](const misc::tqstring& label, double fraction) { calls.emplace_back(misc::to_utf8(label), fraction); });
    const std::string bytes = Written(SharedMesh(100000, 1));
    Mesh mesh;
    EXPECT_EQ(ReadInto(mesh, bytes, 0, &Translator::ReadSTLStream, translator).GetTriangleCount(), 100000u);
    ASSERT_GE(calls.size(), 3u);
    EXPECT_LE(calls.size(), 103u);
    EXPECT_EQ(calls.front(), std::make_pair(std::string("read triangle data"), 0.0));
    EXPECT_EQ(calls[calls.size() - 2], std::make_pair(std::string("read triangle data"), 1.0));
    EXPECT_EQ(calls.back(), std::make_pair(std::string("finish mesh"), 1.0));
    for (std::size_t i = 1; i + 1 < calls.size(); ++i) EXPECT_GT(calls[i].second, calls[i - 1].second);
    // A callback that throws cancels the read and leaves the mesh as it was.
    const Translator cancelling([](const misc::tqstring&, double fraction) {
        if (fraction > 0.5) throw misc::tqException(0, u"cancelled");
    });
    Mesh untouched;
    EXPECT_THROW_MSG(ReadInto(untouched, bytes, 0, &Translator::ReadSTLStream, cancelling), misc::tqException,
                     "cancelled");
    EXPECT_EQ(untouched.GetTriangleCount() + untouched.GetVertexCount(), 0u);
}

TEST(TqTSTLTranslatorFile, WriteAndReadFilesOfBothForms) {
    const Mesh source = SharedMesh(100, 9);
    for (bool text : {false, true}) {
        const misc::tqstring path(TempPath(text ? "text.stl" : "binary.stl"));
        text ? Translator::WriteSTLFile(source, path, Translator::Format::Text)
             : Translator::WriteSTLFile(source, path);
        EXPECT_EQ(Slurp(misc::to_utf8(path)), Written(source, text));
        Mesh back;
        Translator().ReadSTLFile(path, back);
        EXPECT_EQ(Written(back), Written(source));
        std::filesystem::remove(misc::to_utf8(path));
    }
    Mesh bad;
    bad.AddTriangle(0, 1, 2, P());
    const std::string badPath = TempPath("bad.stl");
    EXPECT_THROW_MSG(Translator::WriteSTLFile(bad, misc::tqstring(badPath)), misc::tqSTLParserException,
                     "Can not use a mesh whose triangle 0 refers to missing vertex 0 to write an STL file.");
    EXPECT_FALSE(std::filesystem::exists(badPath));
    EXPECT_THROW_MSG(
        Translator().ReadSTLFile(misc::tqstring(badPath), bad), misc::tqmiscException,
        "tqBufferedBinaryIFStream::tqBufferedBinaryIFStream -> Could not open '" + badPath + "' for reading");
}

TEST(TqTSTLTranslatorRead, MutatedFilesEndInAMeshOrTheParserException) {
    const std::string seeds[] = {Written(SharedMesh(3, 4)), Written(SharedMesh(2, 4), true), BinaryFile(2, 2, "solid"),
                                 Slurp(std::string(TQ_TEST_DATA_DIR) + "/stl/two_facets_upper_crlf.stl")};
    std::mt19937 random(20240601);
    int meshes = 0, refusals = 0;
    for (int round = 0; round < 4000; ++round) {
        std::string bytes = seeds[round % 4];
        for (auto edits = 1 + random() % 4; edits > 0 && !bytes.empty(); --edits) {
            const std::size_t at = random() % bytes.size(), count = 1 + random() % 8, kind = random() % 5;
            const char c = static_cast<char>(random());
            if (kind == 0) bytes[at] = c;
            if (kind == 1) bytes.resize(at);
            if (kind == 2) bytes.insert(at, count, c);
            if (kind == 3) bytes.erase(at, count);
            if (kind == 4) bytes.insert(at, bytes.substr(at / 2, random() % 60));
        }
        for (const std::size_t piece : {std::size_t(0), std::size_t(1 + random() % 64)}) {
            try {
                const Mesh mesh = Read(bytes, piece);
                EXPECT_EQ(mesh.GetVertexCount(), 3 * mesh.GetTriangleCount());
                ++meshes;
            } catch (const misc::tqSTLParserException&) {
                ++refusals;
            } catch (...) {
                ADD_FAILURE() << "round " << round << " ended in another exception";
            }
        }
    }
    EXPECT_GT(meshes, 0);
    EXPECT_GT(refusals, 0);
}
