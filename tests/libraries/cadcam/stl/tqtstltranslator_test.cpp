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

// The largest single allocation, so that hostile counts can be shown not to reserve anything. The compiler
// cannot see that every new and delete of this program meet in malloc and free.
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

const char* kInvalidFormat = "Invalid .stl file format!";
const char* kInvalidCount = "Invalid number of triangles found in .stl file!";
const char* kUnexpectedEnd = "Unexpected end of input stream occurred when reading .stl file";

/// Keeps every byte and the size of every Write call.
class RecordingStream : public misc::tqBinOutputStream {
public:
    std::string bytes;
    std::vector<std::uint64_t> sizes;
    void Write(const void* source, std::uint64_t count) override {
        bytes.append(static_cast<const char*>(source), static_cast<std::size_t>(count));
        sizes.push_back(count);
    }
};

/// An input stream that does not know its size and hands out at most `piece` bytes per call.
class PlainStream : public misc::tqBinInputStream {
public:
    explicit PlainStream(std::string data, std::size_t piece = 1 << 20) : m_data(std::move(data)), m_piece(piece) {}
    void Read(void* destination, std::uint64_t& count) override {
        const std::size_t take =
            std::min<std::size_t>({static_cast<std::size_t>(count), m_piece, m_data.size() - m_at});
        std::memcpy(destination, m_data.data() + m_at, take);
        m_at += take;
        count = take;
    }

private:
    std::string m_data;
    std::size_t m_piece;
    std::size_t m_at = 0;
};

std::string Binary(const Mesh& mesh) {
    RecordingStream out;
    Translator::WriteSTLStream(mesh, out);
    return out.bytes;
}

std::string Text(const Mesh& mesh) {
    RecordingStream out;
    Translator::WriteASTLStream(mesh, out);
    return out.bytes;
}

/// Reads through a stream that knows its size.
Mesh Read(std::string bytes, const Translator& translator = Translator()) {
    misc::tqMemoryIOStream input(&bytes[0], bytes.size(), bytes.size());
    Mesh mesh;
    translator.ReadSTLStream(input, mesh);
    return mesh;
}

/// Reads through a stream that does not.
Mesh ReadPlain(std::string bytes, std::size_t piece = 1 << 20) {
    PlainStream input(std::move(bytes), piece);
    Mesh mesh;
    Translator().ReadSTLStream(input, mesh);
    return mesh;
}

float FloatAt(const std::string& bytes, std::size_t offset) {
    float f;
    std::memcpy(&f, bytes.data() + offset, 4);
    return f;
}

std::string BinaryFile(std::int32_t count, std::size_t records, const char* header = "STL File") {
    std::string bytes(80, ' ');
    std::memcpy(&bytes[0], header, std::strlen(header));
    bytes.append(reinterpret_cast<const char*>(&count), 4);
    for (std::size_t i = 0; i < records; ++i) {
        const float f[12] = {0, 0, 1, float(i), 0, 0, 1, float(i), 0, 0, 1, 0};
        bytes.append(reinterpret_cast<const char*>(f), 48);
        bytes.append(2, '\0');
    }
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
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

std::string TempPath(const std::string& name) {
    return (std::filesystem::temp_directory_path() / ("tqstl_" + std::to_string(::getpid()) + "_" + name)).string();
}

}  // namespace

TEST(TqTSTLTranslatorWrite, EmptyMeshIsTheHeaderAndACountOfZero) {
    const std::string bytes = Binary(Mesh());
    ASSERT_EQ(bytes.size(), 84u);
    EXPECT_EQ(bytes.substr(0, 80), "STL File" + std::string(72, ' '));
    EXPECT_EQ(bytes.substr(80), std::string(4, '\0'));
    RecordingStream header;
    Translator::WriteSTLHeader(header);
    EXPECT_EQ(header.bytes, bytes.substr(0, 80));
    EXPECT_EQ(header.sizes, std::vector<std::uint64_t>{80});
}

TEST(TqTSTLTranslatorWrite, RecordIsStoredNormalThenCornersThenZeroAttribute) {
    Mesh mesh;
    mesh.AddVertex(P(7, 8, 9));
    mesh.AddVertex(P(1, 2, 3));
    mesh.AddVertex(P(4, 5, 6));
    mesh.AddTriangle(1, 2, 0, P(0.5, -0.25, 3));  // the stored normal is written, not a computed one
    const std::string bytes = Binary(mesh);
    ASSERT_EQ(bytes.size(), 134u);
    EXPECT_EQ(bytes.substr(80, 4), std::string("\x01\0\0\0", 4));
    const float expected[12] = {0.5f, -0.25f, 3, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    for (int i = 0; i < 12; ++i) EXPECT_EQ(FloatAt(bytes, 84 + 4 * i), expected[i]) << i;
    EXPECT_EQ(bytes.substr(132), std::string(2, '\0'));
    EXPECT_EQ(bytes.substr(84, 4), std::string("\0\0\0\x3f", 4));  // little-endian 0.5f
}

TEST(TqTSTLTranslatorWrite, NarrowingClampsHugeAndFlushesTinyValues) {
    const double clamp = 3.0000000054977558e+38;
    EXPECT_EQ(Translator::Narrow(1e39), static_cast<float>(clamp));
    EXPECT_EQ(static_cast<double>(Translator::Narrow(1e39)), clamp);
    EXPECT_EQ(Translator::Narrow(-1e39), -static_cast<float>(clamp));
    EXPECT_EQ(Translator::Narrow(3.1e38), static_cast<float>(clamp));  // tighter than the float's own limit
    EXPECT_EQ(Translator::Narrow(1e-39), 0.0f);
    EXPECT_FALSE(std::signbit(Translator::Narrow(-1e-39)));
    EXPECT_EQ(Translator::Narrow(1.1754943508222875e-38), 1.1754943508222875e-38f);
    EXPECT_EQ(Translator::Narrow(0.1), 0.1f);
    EXPECT_TRUE(std::isnan(Translator::Narrow(std::nan(""))));
    EXPECT_EQ(cadcam::tqTSTLTranslator<float>::Narrow(1e-40f), 0.0f);
    EXPECT_EQ(cadcam::tqTSTLTranslator<float>::Narrow(3.3e38f), static_cast<float>(clamp));

    Mesh mesh;
    mesh.AddTriangle(P(1e-39, 1e39, -1e39), P(), P(), P());
    const std::string bytes = Binary(mesh);
    EXPECT_EQ(FloatAt(bytes, 96), 0.0f);
    EXPECT_EQ(FloatAt(bytes, 100), static_cast<float>(clamp));
    EXPECT_EQ(FloatAt(bytes, 104), -static_cast<float>(clamp));
}

TEST(TqTSTLTranslatorWrite, PiecewiseWritesOnePiecePerFieldAndMatchesTheBlockWriter) {
    // More triangles than one block of the fast writer, over shared vertices in scattered order.
    const Mesh mesh = SharedMesh(20000, 7);
    RecordingStream piecewise;
    Translator::WriteSTLStreamPiecewise(mesh, piecewise);
    ASSERT_EQ(piecewise.sizes.size(), 2 + 5 * mesh.GetTriangleCount());
    EXPECT_EQ(piecewise.sizes[0], 80u);
    EXPECT_EQ(piecewise.sizes[1], 4u);
    for (std::size_t i = 2; i < piecewise.sizes.size(); i += 5)
        ASSERT_EQ(std::vector<std::uint64_t>(piecewise.sizes.begin() + i, piecewise.sizes.begin() + i + 5),
                  (std::vector<std::uint64_t>{12, 12, 12, 12, 2}));
    RecordingStream fast;
    Translator::WriteSTLStream(mesh, fast);
    EXPECT_EQ(fast.bytes, piecewise.bytes);
    EXPECT_LT(fast.sizes.size(), 10u);

    RecordingStream data;
    Translator::WriteSTLData(mesh, data);
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
    RecordingStream out;
    EXPECT_THROW_MSG(Translator::WriteSTLStream(noTriangles, out), misc::tqException, "Accessing TQ_NULL pointer");
}

TEST(TqTSTLTranslatorRead, BinaryRoundTripAppendsThreeVerticesPerTriangle) {
    const Mesh source = SharedMesh(300, 11);
    Mesh mesh;
    mesh.AddTriangle(P(1, 1, 1), P(2, 2, 2), P(3, 3, 3), P(0, 0, 1));  // existing content stays in front
    std::string bytes = Binary(source);
    misc::tqMemoryIOStream input(&bytes[0], bytes.size(), bytes.size());
    Translator().ReadSTLStream(input, mesh);
    ASSERT_EQ(mesh.GetTriangleCount(), 301u);
    ASSERT_EQ(mesh.GetVertexCount(), 903u);
    EXPECT_EQ(mesh.Corner(0, 2), P(3, 3, 3));
    for (std::size_t i = 0; i < 300; ++i) {
        const auto& t = (*mesh.GetTriangles())[i + 1];
        EXPECT_EQ(t.v[0], 3 + 3 * i);
        EXPECT_EQ(t.v[2], 5 + 3 * i);
        const auto& s = (*source.GetTriangles())[i];
        EXPECT_EQ(t.normal,
                  P(Translator::Narrow(s.normal.x), Translator::Narrow(s.normal.y), Translator::Narrow(s.normal.z)));
        for (int k = 0; k < 3; ++k) {
            const P& c = source.Corner(i, k);
            ASSERT_EQ(mesh.Corner(i + 1, k),
                      P(Translator::Narrow(c.x), Translator::Narrow(c.y), Translator::Narrow(c.z)));
        }
    }
    EXPECT_EQ(Binary(mesh).substr(134), bytes.substr(84));
    PlainStream plain(bytes, 7);
    Mesh unsized;
    Translator().ParseSTLStream(plain, unsized);
    EXPECT_EQ(Binary(unsized), bytes);
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
    EXPECT_EQ(ReadPlain(bytes, 5).GetTriangleCount(), 3u);
    EXPECT_EQ(Read(BinaryFile(0, 0, "solid")).GetTriangleCount(), 0u);
    // The count no longer fits the size: then "solid" makes it text, which it is not.
    EXPECT_THROW_MSG(Read(BinaryFile(4, 3, "solid x\nfoo")), misc::tqSTLParserException,
                     "Unknown keyword found while parsing .stl file");
}

TEST(TqTSTLTranslatorRead, TextSpellingsReadAlike) {
    const std::string dir = std::string(TQ_TEST_DATA_DIR) + "/stl/";
    // two facets closed by "endloop" and "endfacet"
    const std::string joined = Slurp(dir + "two_facets_endloop.stl");
    // the same two facets closed by "end loop" and "end facet"
    const std::string spaced = Slurp(dir + "two_facets_end_loop.stl");
    // the same in upper and mixed case, "OUTERLOOP", CR LF line ends, signed numbers
    const std::string upper = Slurp(dir + "two_facets_upper_crlf.stl");
    const Mesh a = Read(joined), b = Read(spaced), c = ReadPlain(upper, 3);
    const std::string bytes = Binary(a);
    ASSERT_EQ(a.GetTriangleCount(), 2u);
    EXPECT_EQ(a.Corner(1, 2), P(1.5, -22.5, 0.03));
    EXPECT_EQ(a.Corner(1, 1), P(0, 1, 0));
    EXPECT_EQ((*a.GetTriangles())[1].normal, P(0, 0, -1));
    EXPECT_EQ(Binary(b), bytes);
    EXPECT_EQ(Binary(c), bytes);
    Mesh fromFile;
    Translator().ReadSTLFile(misc::tqstring(dir + "two_facets_end_loop.stl"), fromFile);
    EXPECT_EQ(Binary(fromFile), bytes);
}

TEST(TqTSTLTranslatorWrite, TextLayoutAndRoundTrip) {
    Mesh mesh;
    mesh.AddTriangle(P(0, 0.1, -2), P(1e-39, 1e39, 123456789), P(0.5, 1, 1.5), P(0, 0, 1));
    EXPECT_EQ(Text(mesh),
              "solid ascii\n"
              "  facet normal 0 0 1\n"
              "    outer loop\n"
              "      vertex 0 0.1 -2\n"
              "      vertex 0 3e+38 123456792\n"
              "      vertex 0.5 1 1.5\n"
              "    endloop\n"
              "  endfacet\n"
              "endsolid\n");
    const Mesh source = SharedMesh(3000, 5);
    std::string text = Text(source);
    misc::tqMemoryIOStream input(&text[0], text.size(), text.size());
    Mesh back;
    Translator().ParseASTLStream(input, back);
    EXPECT_EQ(Binary(back), Binary(source));  // every number reads back as the same float
    EXPECT_EQ(Text(Mesh()), "solid ascii\nendsolid\n");
}

TEST(TqTSTLTranslatorRead, TruncatedAndMiscountedBinaryData) {
    const std::string whole = BinaryFile(4, 4);
    for (std::size_t cut : {84u, 100u, 183u, 233u}) {
        SCOPED_TRACE(cut);
        EXPECT_THROW_MSG(Read(whole.substr(0, cut)), misc::tqSTLParserException, kInvalidCount);
        EXPECT_THROW_MSG(ReadPlain(whole.substr(0, cut)), misc::tqSTLParserException, kUnexpectedEnd);
        // A failed read leaves what the mesh held before.
        PlainStream plain(whole.substr(0, cut));
        Mesh mesh;
        mesh.AddTriangle(P(1, 1, 1), P(2, 2, 2), P(3, 3, 3), P(0, 0, 1));
        EXPECT_THROW_MSG(Translator().ParseSTLStream(plain, mesh), misc::tqSTLParserException, kUnexpectedEnd);
        EXPECT_EQ(mesh.GetTriangleCount(), 1u);
        EXPECT_EQ(mesh.GetVertexCount(), 3u);
    }
    EXPECT_THROW_MSG(Read(whole + "x"), misc::tqSTLParserException, kInvalidCount);
    EXPECT_THROW_MSG(Read(BinaryFile(-1, 0)), misc::tqSTLParserException, kInvalidCount);
    PlainStream shortHeader(whole.substr(0, 50));
    Mesh mesh;
    EXPECT_THROW_MSG(Translator().ParseSTLStream(shortHeader, mesh), misc::tqSTLParserException, kUnexpectedEnd);
}

TEST(TqTSTLTranslatorRead, HostileCountFailsWithoutAHugeAllocation) {
    g_largestAllocation = 0;
    for (const std::int32_t count : {0x7fffffff, 0x40000000}) {
        std::string bytes = BinaryFile(count, 2);
        bytes.resize(200, '\0');
        EXPECT_THROW_MSG(Read(bytes), misc::tqSTLParserException, kInvalidCount);
        // Without a size the count is believed only as far as records arrive; more vertices than 32-bit
        // indices can reach are refused at once.
        const char* text = count == 0x7fffffff ? kInvalidCount : kUnexpectedEnd;
        EXPECT_THROW_MSG(ReadPlain(bytes), misc::tqSTLParserException, text);
        PlainStream plain(bytes);
        Mesh mesh;
        EXPECT_THROW_MSG(Translator().ParseSTLStream(plain, mesh), misc::tqSTLParserException, text);
    }
    EXPECT_LT(g_largestAllocation, std::size_t(4) << 20);
}

TEST(TqTSTLTranslatorRead, GarbageIsRefused) {
    for (const std::string& bytes : {std::string(), std::string("x"), std::string(83, '\x7f'), std::string("soli")})
        EXPECT_THROW_MSG(Read(bytes), misc::tqSTLParserException, kInvalidFormat);
    EXPECT_THROW_MSG(ReadPlain(std::string(50, 'g')), misc::tqSTLParserException, kInvalidFormat);
    // Long enough for a binary header, but its count does not fit.
    EXPECT_THROW_MSG(Read(std::string(1000, 'g')), misc::tqSTLParserException, kInvalidCount);
    EXPECT_THROW_MSG(Read("solid\n" + std::string(500, '\x01') + "\n"), misc::tqSTLParserException,
                     "Unknown keyword found while parsing .stl file");
}

TEST(TqTSTLTranslatorRead, ProgressIsReportedByPhaseAtABoundedRate) {
    std::vector<std::pair<std::string, double>> calls;
    const Translator translator(
        [&calls](const misc::tqstring& label, double fraction) { calls.emplace_back(misc::to_utf8(label), fraction); });
    const Mesh read = Read(Binary(SharedMesh(100000, 1)), translator);
    EXPECT_EQ(read.GetTriangleCount(), 100000u);
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
    Mesh mesh;
    std::string bytes = Binary(SharedMesh(100000, 1));
    misc::tqMemoryIOStream input(&bytes[0], bytes.size(), bytes.size());
    EXPECT_THROW_MSG(cancelling.ReadSTLStream(input, mesh), misc::tqException, "cancelled");
    EXPECT_EQ(mesh.GetTriangleCount(), 0u);
    EXPECT_EQ(mesh.GetVertexCount(), 0u);
}

TEST(TqTSTLTranslatorFile, WriteAndReadFilesOfBothForms) {
    const Mesh source = SharedMesh(100, 9);
    const std::string binaryPath = TempPath("binary.stl"), textPath = TempPath("text.stl");
    Translator::WriteSTLFile(source, misc::tqstring(binaryPath));
    Translator::WriteSTLFile(source, misc::tqstring(textPath), Translator::Format::Text);
    EXPECT_EQ(Slurp(binaryPath), Binary(source));
    EXPECT_EQ(Slurp(textPath), Text(source));
    Mesh a, b;
    Translator().ReadSTLFile(misc::tqstring(binaryPath), a);
    Translator().ReadSTLFile(misc::tqstring(textPath), b);
    EXPECT_EQ(Binary(a), Binary(source));
    EXPECT_EQ(Binary(b), Binary(source));

    Mesh bad;
    bad.AddTriangle(0, 1, 2, P());
    const std::string badPath = TempPath("bad.stl");
    EXPECT_THROW_MSG(Translator::WriteSTLFile(bad, misc::tqstring(badPath)), misc::tqSTLParserException,
                     "Can not use a mesh whose triangle 0 refers to missing vertex 0 to write an STL file.");
    EXPECT_FALSE(std::filesystem::exists(badPath));
    EXPECT_THROW_MSG(
        Translator().ReadSTLFile(misc::tqstring(badPath), a), misc::tqmiscException,
        "tqBufferedBinaryIFStream::tqBufferedBinaryIFStream -> Could not open '" + badPath + "' for reading");
    std::filesystem::remove(binaryPath);
    std::filesystem::remove(textPath);
}

TEST(TqTSTLTranslatorRead, MutatedFilesEndInAMeshOrTheParserException) {
    std::vector<std::string> seeds = {Binary(SharedMesh(3, 4)), Text(SharedMesh(2, 4)), BinaryFile(2, 2, "solid"),
                                      Slurp(std::string(TQ_TEST_DATA_DIR) + "/stl/two_facets_upper_crlf.stl")};
    std::mt19937 random(20240601);
    int meshes = 0, refusals = 0;
    for (int round = 0; round < 4000; ++round) {
        std::string bytes = seeds[static_cast<std::size_t>(round) % seeds.size()];
        const int edits = 1 + static_cast<int>(random() % 4);
        for (int e = 0; e < edits && !bytes.empty(); ++e) {
            const std::size_t at = random() % bytes.size();
            switch (random() % 5) {
                case 0:
                    bytes[at] = static_cast<char>(random());
                    break;
                case 1:
                    bytes.resize(at);
                    break;
                case 2:
                    bytes.insert(at, std::string(1 + random() % 8, static_cast<char>(random())));
                    break;
                case 3:
                    bytes.erase(at, 1 + random() % 8);
                    break;
                default:
                    bytes.insert(at, bytes.substr(at / 2, random() % 60));
                    break;
            }
        }
        for (bool sized : {true, false}) {
            try {
                const Mesh mesh = sized ? Read(bytes) : ReadPlain(bytes, 1 + random() % 64);
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
