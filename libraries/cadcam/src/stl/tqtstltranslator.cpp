// The STL translator: format detection, the binary and text readers, and the binary and text writers.
#include "cadcam/stl/tqtstltranslator.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <limits>
#include <memory>
#include <new>
#include <string>
#include <typeinfo>
#include <vector>

#include "cadcam/stl/tqastlparser.h"
#include "misc/tqbinaryofstream.h"
#include "misc/tqbinstream.h"
#include "misc/tqbufferedbinaryifstream.h"
#include "misc/tqexception.h"
#include "stlfailure.h"
#include "misc/tqmemoryiostream.h"

#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ != __ORDER_LITTLE_ENDIAN__
#error "STL records are copied as they stand in memory, which needs a little-endian machine"
#endif

namespace cadcam {

namespace {

using stl::Fail;
using stl::kInvalidFormat;
using stl::kUnexpectedEnd;
using stl::kInvalidCount;

constexpr const char16_t* kReadLabel = u"read triangle data";
constexpr const char16_t* kFinishLabel = u"finish mesh";

constexpr std::size_t kHeaderBytes = 80;
constexpr std::size_t kPrologueSize = kHeaderBytes + 4;  // header and count
constexpr std::size_t kRecordSize = 50;
// Records per block in the fast reader and writer: 400 KB, enough to amortise each stream call.
constexpr std::uint64_t kBlockTriangles = 8192;
// Vertex indices are 32 bits wide.
constexpr std::uint64_t kMaxVertices = std::uint64_t(std::numeric_limits<std::uint32_t>::max()) + 1;
constexpr double kClamp = 3.0000000054977558e+38;
constexpr double kSmallest = 1.1754943508222875e-38;


[[noreturn]] void CannotWrite(const misc::tqstring& name) { Fail(u"Can not use " + name + u" to write an STL file."); }

inline float NarrowValue(double v) {
    v = v < -kClamp ? -kClamp : v;
    v = v > kClamp ? kClamp : v;
    v = std::fabs(v) < kSmallest ? 0.0 : v;
    return static_cast<float>(v);
}

/// Reads until count bytes arrived or the stream ran dry; returns how many arrived.
std::uint64_t ReadFully(misc::tqBinInputStream& input, void* destination, std::uint64_t count) {
    auto* out = static_cast<std::uint8_t*>(destination);
    std::uint64_t done = 0;
    while (done < count) {
        std::uint64_t chunk = count - done;
        input.Read(out + done, chunk);
        if (chunk == 0) break;
        done += chunk;
    }
    return done;
}

std::int32_t CountOf(const std::uint8_t* prologue) {
    std::int32_t count;
    std::memcpy(&count, prologue + kHeaderBytes, sizeof count);
    return count;
}

bool IsSpace(std::uint8_t c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\v' || c == '\f'; }

/// Optional byte-order mark, blanks, then "solid" in any case followed by a blank or the end of the bytes seen.
bool BeginsWithSolid(const std::uint8_t* bytes, std::size_t size) {
    std::size_t i = 0;
    if (size >= 3 && bytes[0] == 0xEF && bytes[1] == 0xBB && bytes[2] == 0xBF) i = 3;
    while (i < size && IsSpace(bytes[i])) ++i;
    static const char kSolid[] = "solid";
    for (const char* k = kSolid; *k != 0; ++k, ++i)
        if (i >= size || (bytes[i] | 0x20) != *k) return false;
    return i == size || IsSpace(bytes[i]);
}

/// Reports one phase at most about a hundred times, however many steps it has.
class Progress {
public:
    Progress(const std::function<void(const misc::tqstring&, double)>& callback, const char16_t* label)
        : m_callback(callback), m_label(label) {}
    void Report(double fraction) {
        if (!m_callback || fraction < m_next) return;
        m_next = fraction >= 1.0 ? 2.0 : fraction + 0.01;
        m_callback(m_label, fraction);
    }

private:
    const std::function<void(const misc::tqstring&, double)>& m_callback;
    misc::tqstring m_label;
    double m_next = 0.0;
};

/// Puts the mesh's arrays back to their old lengths unless the read completed.
template <class V, class Tri>
class MeshGuard {
public:
    MeshGuard(std::vector<V>& vertices, std::vector<Tri>& triangles)
        : m_vertices(vertices),
          m_triangles(triangles),
          m_vertexCount(vertices.size()),
          m_triangleCount(triangles.size()) {}
    MeshGuard(const MeshGuard&) = delete;
    MeshGuard& operator=(const MeshGuard&) = delete;
    ~MeshGuard() {
        if (m_done) return;
        m_vertices.erase(m_vertices.begin() + static_cast<std::ptrdiff_t>(m_vertexCount), m_vertices.end());
        m_triangles.erase(m_triangles.begin() + static_cast<std::ptrdiff_t>(m_triangleCount), m_triangles.end());
    }
    void Commit() { m_done = true; }

private:
    std::vector<V>& m_vertices;
    std::vector<Tri>& m_triangles;
    std::size_t m_vertexCount, m_triangleCount;
    bool m_done = false;
};

/// Bytes already taken from a stream, served before the rest of it.
class PrefixedStream final : public misc::tqBinInputStream {
public:
    PrefixedStream(const std::uint8_t* prefix, std::size_t size, misc::tqBinInputStream& rest)
        : m_prefix(prefix), m_size(size), m_rest(rest) {}
    void Read(void* destination, std::uint64_t& count) override {
        const std::uint64_t take = std::min<std::uint64_t>(count, m_size - m_used);
        std::memcpy(destination, m_prefix + m_used, static_cast<std::size_t>(take));
        m_used += static_cast<std::size_t>(take);
        std::uint64_t more = count - take;
        if (more > 0) m_rest.Read(static_cast<std::uint8_t*>(destination) + take, more);
        count = take + more;
    }
    bool GetRemaining(std::uint64_t& remaining) const override {
        if (!m_rest.GetRemaining(remaining)) return false;
        remaining += m_size - m_used;
        return true;
    }

private:
    const std::uint8_t* m_prefix;
    std::size_t m_size;
    std::size_t m_used = 0;
    misc::tqBinInputStream& m_rest;
};

template <class T>
void Reserve(std::vector<tqTPoint3d<T>>& vertices, std::vector<typename tqTMesh<T>::Triangle>& triangles,
             std::uint64_t count) {
    try {
        vertices.reserve(vertices.size() + 3 * count);
        triangles.reserve(triangles.size() + count);
    } catch (const std::bad_alloc&) {
        throw misc::tqMemoryException(u"tqTSTLTranslator: Not enough memory for " +
                                      misc::to_tqstring(static_cast<unsigned long long>(count)) + u" triangles");
    }
}

/// The elements of a block of records as a random-access sequence decoded on the fly, so that vector::insert
/// builds them in place: no zero fill before the real values, no capacity check for each element.
template <class Value, class Decode>
class DecodingIterator {
public:
    using iterator_category = std::random_access_iterator_tag;
    using value_type = Value;
    using difference_type = std::ptrdiff_t;
    using pointer = const Value*;
    using reference = Value;

    DecodingIterator(const Decode& decode, std::size_t k) : m_decode(&decode), m_k(k) {}
    Value operator*() const { return (*m_decode)(m_k); }
    Value operator[](difference_type d) const { return (*m_decode)(m_k + static_cast<std::size_t>(d)); }
    DecodingIterator& operator++() {
        ++m_k;
        return *this;
    }
    DecodingIterator operator++(int) {
        DecodingIterator old = *this;
        ++m_k;
        return old;
    }
    DecodingIterator& operator--() {
        --m_k;
        return *this;
    }
    DecodingIterator operator--(int) {
        DecodingIterator old = *this;
        --m_k;
        return old;
    }
    DecodingIterator& operator+=(difference_type d) {
        m_k += static_cast<std::size_t>(d);
        return *this;
    }
    DecodingIterator& operator-=(difference_type d) {
        m_k -= static_cast<std::size_t>(d);
        return *this;
    }
    DecodingIterator operator+(difference_type d) const {
        return DecodingIterator(*m_decode, m_k + static_cast<std::size_t>(d));
    }
    DecodingIterator operator-(difference_type d) const {
        return DecodingIterator(*m_decode, m_k - static_cast<std::size_t>(d));
    }
    difference_type operator-(const DecodingIterator& o) const { return static_cast<difference_type>(m_k - o.m_k); }
    bool operator==(const DecodingIterator& o) const { return m_k == o.m_k; }
    bool operator!=(const DecodingIterator& o) const { return m_k != o.m_k; }
    bool operator<(const DecodingIterator& o) const { return m_k < o.m_k; }
    bool operator>(const DecodingIterator& o) const { return m_k > o.m_k; }
    bool operator<=(const DecodingIterator& o) const { return m_k <= o.m_k; }
    bool operator>=(const DecodingIterator& o) const { return m_k >= o.m_k; }

private:
    const Decode* m_decode;
    std::size_t m_k;
};

template <class Value, class Decode>
void AppendDecoded(std::vector<Value>& to, const Decode& decode, std::size_t count) {
    to.insert(to.end(), DecodingIterator<Value, Decode>(decode, 0), DecodingIterator<Value, Decode>(decode, count));
}

/// Appends n records: a triangle and three vertices of its own for each.
template <class V, class Tri>
void AppendRecords(const std::uint8_t* records, std::size_t n, std::vector<V>& vertices, std::vector<Tri>& triangles) {
    const auto point = [](const std::uint8_t* at) {
        float f[3];
        std::memcpy(f, at, sizeof f);
        return V(f[0], f[1], f[2]);
    };
    const auto first = static_cast<std::uint32_t>(vertices.size());
    const auto triangle = [&](std::size_t j) {
        const auto index = static_cast<std::uint32_t>(first + 3 * j);
        return Tri{{index, index + 1, index + 2}, point(records + j * kRecordSize)};
    };
    const auto corner = [&](std::size_t k) { return point(records + k / 3 * kRecordSize + 12 + k % 3 * 12); };
    AppendDecoded(triangles, triangle, n);
    AppendDecoded(vertices, corner, 3 * n);
}

/// Appends count records of the binary form. sized says whether remaining is the stream's exact rest.
template <class T>
void ReadBinaryTriangles(misc::tqBinInputStream& input, std::int32_t signedCount, bool sized, std::uint64_t remaining,
                         tqTMesh<T>& mesh, const typename tqTSTLTranslator<T>::ProgressCallback& callback) {
    using V = tqTPoint3d<T>;
    using Tri = typename tqTMesh<T>::Triangle;
    if (signedCount < 0) Fail(kInvalidCount);
    const auto count = static_cast<std::uint64_t>(signedCount);
    if (sized && remaining != count * kRecordSize) Fail(kInvalidCount);
    std::vector<V>& vertices = *mesh.GetVertices();
    std::vector<Tri>& triangles = *mesh.GetTriangles();
    if (vertices.size() + 3 * count > kMaxVertices) Fail(kInvalidCount);
    MeshGuard<V, Tri> guard(vertices, triangles);
    // Only a size that confirms the count earns a reservation; otherwise the arrays grow with the data.
    if (sized) Reserve<T>(vertices, triangles, count);

    Progress progress(callback, kReadLabel);
    progress.Report(0.0);
    const std::uint64_t blockTriangles = std::max<std::uint64_t>(std::min(count, kBlockTriangles), 1);
    // A plain memory stream is decoded where its bytes stand; any other stream is read block by block.
    auto* memory =
        typeid(input) == typeid(misc::tqMemoryIOStream) ? static_cast<misc::tqMemoryIOStream*>(&input) : nullptr;
    std::unique_ptr<std::uint8_t[]> block(memory != nullptr ? nullptr : new std::uint8_t[blockTriangles * kRecordSize]);
    for (std::uint64_t done = 0; done < count;) {
        const std::uint64_t n = std::min(count - done, blockTriangles);
        const std::uint64_t bytes = n * kRecordSize;
        if (memory != nullptr) {
            const std::uint64_t at = memory->GetPosition();
            if (memory->GetSize() - at < bytes) Fail(kUnexpectedEnd);
            AppendRecords(memory->GetBuffer() + at, n, vertices, triangles);
            memory->Seek(at + bytes);
        } else {
            if (ReadFully(input, block.get(), bytes) != bytes) Fail(kUnexpectedEnd);
            AppendRecords(block.get(), n, vertices, triangles);
        }
        done += n;
        progress.Report(static_cast<double>(done) / static_cast<double>(count));
    }
    progress.Report(1.0);
    Progress(callback, kFinishLabel).Report(1.0);
    guard.Commit();
}

/// Collects the parser's facets into the mesh and reports progress by bytes, where the size is known.
template <class T>
class MeshCommands final : public tqASTLParser::Commands {
public:
    using V = tqTPoint3d<T>;
    using Tri = typename tqTMesh<T>::Triangle;

    MeshCommands(std::vector<V>& vertices, std::vector<Tri>& triangles, const tqASTLParser& parser, std::uint64_t size,
                 Progress& progress)
        : m_vertices(vertices), m_triangles(triangles), m_parser(parser), m_size(size), m_progress(progress) {}

    void SetNormal(double x, double y, double z) override { m_normal = Point(x, y, z); }
    void SetFirstPoint(double x, double y, double z) override { m_corners[0] = Point(x, y, z); }
    void SetSecondPoint(double x, double y, double z) override { m_corners[1] = Point(x, y, z); }
    void SetThirdPoint(double x, double y, double z) override { m_corners[2] = Point(x, y, z); }
    void EndFacet() override {
        if (m_vertices.size() + 3 > kMaxVertices) Fail(kInvalidCount);
        const auto first = static_cast<std::uint32_t>(m_vertices.size());
        m_vertices.insert(m_vertices.end(), m_corners, m_corners + 3);
        m_triangles.push_back(Tri{{first, first + 1, first + 2}, m_normal});
        if (m_size > 0 && (m_triangles.size() & 1023) == 0)
            m_progress.Report(
                std::min(1.0, static_cast<double>(m_parser.GetBytesRead()) / static_cast<double>(m_size)));
    }

private:
    static V Point(double x, double y, double z) { return V(static_cast<T>(x), static_cast<T>(y), static_cast<T>(z)); }

    std::vector<V>& m_vertices;
    std::vector<Tri>& m_triangles;
    const tqASTLParser& m_parser;
    std::uint64_t m_size;
    Progress& m_progress;
    V m_normal;
    V m_corners[3];
};

template <class T>
void ReadText(misc::tqBinInputStream& input, tqTMesh<T>& mesh,
              const typename tqTSTLTranslator<T>::ProgressCallback& callback) {
    using V = tqTPoint3d<T>;
    using Tri = typename tqTMesh<T>::Triangle;
    std::vector<V>& vertices = *mesh.GetVertices();
    std::vector<Tri>& triangles = *mesh.GetTriangles();
    MeshGuard<V, Tri> guard(vertices, triangles);
    std::uint64_t size = 0;
    if (!input.GetRemaining(size)) size = 0;
    Progress progress(callback, kReadLabel);
    progress.Report(0.0);
    tqASTLParser parser(input);
    MeshCommands<T> commands(vertices, triangles, parser, size, progress);
    parser.Parse(commands);
    progress.Report(1.0);
    Progress(callback, kFinishLabel).Report(1.0);
    guard.Commit();
}

/// The size decides: 84 + 50 x count is binary; anything else that begins with "solid" is text.
template <class T>
void ReadSized(misc::tqBinInputStream& input, std::uint64_t remaining, tqTMesh<T>& mesh,
               const typename tqTSTLTranslator<T>::ProgressCallback& callback) {
    std::uint8_t prologue[kPrologueSize];
    const std::uint64_t wanted = std::min<std::uint64_t>(remaining, kPrologueSize);
    const auto got = static_cast<std::size_t>(ReadFully(input, prologue, wanted));
    if (got != wanted) Fail(kUnexpectedEnd);
    if (got == kPrologueSize) {
        const std::int32_t count = CountOf(prologue);
        if (count >= 0 && remaining - kPrologueSize == static_cast<std::uint64_t>(count) * kRecordSize) {
            ReadBinaryTriangles<T>(input, count, true, remaining - kPrologueSize, mesh, callback);
            return;
        }
    }
    if (BeginsWithSolid(prologue, got)) {
        PrefixedStream text(prologue, got, input);
        ReadText<T>(text, mesh, callback);
        return;
    }
    // Too short for the binary header, or a binary header whose count does not fit the size.
    Fail(got < kPrologueSize ? kInvalidFormat : kInvalidCount);
}

template <class V, class Tri>
struct MeshArrays {
    const std::vector<V>* vertices;
    const std::vector<Tri>& triangles;
};

/// The arrays of a mesh the format can hold, checked before anything is written.
template <class T>
MeshArrays<tqTPoint3d<T>, typename tqTMesh<T>::Triangle> Writable(const tqTMesh<T>& mesh) {
    const auto& triangles = *mesh.GetTriangles();
    if (triangles.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max()))
        CannotWrite(u"a mesh of " + misc::to_tqstring(static_cast<unsigned long long>(triangles.size())) +
                    u" triangles");
    if (triangles.empty()) return {nullptr, triangles};
    const auto& vertices = *mesh.GetVertices();
    std::uint32_t highest = 0;
    for (const auto& t : triangles) highest = std::max({highest, t.v[0], t.v[1], t.v[2]});
    if (highest >= vertices.size()) {
        for (std::size_t i = 0; i < triangles.size(); ++i)
            for (const std::uint32_t v : triangles[i].v)
                if (v >= vertices.size())
                    CannotWrite(u"a mesh whose triangle " + misc::to_tqstring(static_cast<unsigned long long>(i)) +
                                u" refers to missing vertex " + misc::to_tqstring(static_cast<unsigned long long>(v)));
    }
    return {&vertices, triangles};
}

void StoreHeader(std::uint8_t* header) {
    std::memset(header, ' ', kHeaderBytes);
    std::memcpy(header, "STL File", 8);
}

template <class V>
void StorePoint(float* out, const V& p) {
    out[0] = NarrowValue(p.x);
    out[1] = NarrowValue(p.y);
    out[2] = NarrowValue(p.z);
}

template <class T>
void WriteBinaryBlocks(const MeshArrays<tqTPoint3d<T>, typename tqTMesh<T>::Triangle>& arrays,
                       misc::tqBinOutputStream& output) {
    std::uint8_t prologue[kPrologueSize];
    StoreHeader(prologue);
    const auto count = static_cast<std::int32_t>(arrays.triangles.size());
    std::memcpy(prologue + kHeaderBytes, &count, sizeof count);
    output.Write(prologue, kPrologueSize);
    if (count == 0) return;

    const auto* triangles = arrays.triangles.data();
    const auto* vertices = arrays.vertices->data();
    const auto total = static_cast<std::uint64_t>(count);
    const std::uint64_t blockTriangles = std::min(total, kBlockTriangles);
    std::unique_ptr<std::uint8_t[]> block(new std::uint8_t[blockTriangles * kRecordSize]);
    for (std::uint64_t done = 0; done < total;) {
        const std::uint64_t n = std::min(total - done, blockTriangles);
        std::uint8_t* record = block.get();
        for (std::uint64_t j = 0; j < n; ++j, record += kRecordSize) {
            const auto& t = triangles[done + j];
            float f[12];
            StorePoint(f, t.normal);
            StorePoint(f + 3, vertices[t.v[0]]);
            StorePoint(f + 6, vertices[t.v[1]]);
            StorePoint(f + 9, vertices[t.v[2]]);
            std::memcpy(record, f, sizeof f);
            record[48] = record[49] = 0;
        }
        output.Write(block.get(), n * kRecordSize);
        done += n;
    }
}

template <class T>
void WriteTextBlocks(const MeshArrays<tqTPoint3d<T>, typename tqTMesh<T>::Triangle>& arrays,
                     misc::tqBinOutputStream& output) {
    constexpr std::size_t kFlushAt = 1 << 16;
    std::string text;
    text.reserve(kFlushAt + 1024);
    const auto appendPoint = [&text](const tqTPoint3d<T>& p) {
        char number[32];
        for (const T value : {p.x, p.y, p.z}) {
            // The shortest text that reads back as the same float.
            const auto end = std::to_chars(number, number + sizeof number, NarrowValue(value)).ptr;
            text += ' ';
            text.append(number, end);
        }
        text += '\n';
    };
    text += "solid ascii\n";
    for (const auto& t : arrays.triangles) {
        text += "  facet normal";
        appendPoint(t.normal);
        text += "    outer loop\n";
        for (const std::uint32_t v : t.v) {
            text += "      vertex";
            appendPoint((*arrays.vertices)[v]);
        }
        text += "    endloop\n  endfacet\n";
        if (text.size() >= kFlushAt) {
            output.Write(text.data(), text.size());
            text.clear();
        }
    }
    text += "endsolid\n";
    output.Write(text.data(), text.size());
}

}  // namespace

template <class T>
tqTSTLTranslator<T>::tqTSTLTranslator(ProgressCallback progress) : m_progress(std::move(progress)) {}

template <class T>
float tqTSTLTranslator<T>::Narrow(T value) {
    return NarrowValue(value);
}

template <class T>
void tqTSTLTranslator<T>::ReadSTLStream(misc::tqBinInputStream& input, Mesh& mesh) const {
    std::uint64_t remaining = 0;
    if (input.GetRemaining(remaining)) {
        ReadSized<T>(input, remaining, mesh, m_progress);
        return;
    }
    std::uint8_t prologue[kPrologueSize];
    const auto got = static_cast<std::size_t>(ReadFully(input, prologue, kPrologueSize));
    if (!BeginsWithSolid(prologue, got)) {
        if (got < kPrologueSize) Fail(kInvalidFormat);
        ReadBinaryTriangles<T>(input, CountOf(prologue), false, 0, mesh, m_progress);
        return;
    }
    // "solid" opens text files and some binary ones, and only the size tells them apart: take the whole stream.
    std::vector<std::uint8_t> all(prologue, prologue + got);
    for (;;) {
        const std::size_t used = all.size();
        all.resize(used + std::max<std::size_t>(used, 1 << 16));
        std::uint64_t chunk = all.size() - used;
        input.Read(all.data() + used, chunk);
        all.resize(used + static_cast<std::size_t>(chunk));
        if (chunk == 0) break;
    }
    misc::tqMemoryIOStream memory(all.data(), all.size(), all.size());
    ReadSized<T>(memory, all.size(), mesh, m_progress);
}

template <class T>
void tqTSTLTranslator<T>::ParseSTLStream(misc::tqBinInputStream& input, Mesh& mesh) const {
    std::uint64_t remaining = 0;
    const bool sized = input.GetRemaining(remaining);
    std::uint8_t prologue[kPrologueSize];
    if (ReadFully(input, prologue, kPrologueSize) != kPrologueSize) Fail(kUnexpectedEnd);
    ReadBinaryTriangles<T>(input, CountOf(prologue), sized, remaining - kPrologueSize, mesh, m_progress);
}

template <class T>
void tqTSTLTranslator<T>::ParseASTLStream(misc::tqBinInputStream& input, Mesh& mesh) const {
    ReadText<T>(input, mesh, m_progress);
}

template <class T>
void tqTSTLTranslator<T>::ReadSTLFile(const misc::tqstring& path, Mesh& mesh) const {
    misc::tqBufferedBinaryIFStream input(path);
    ReadSTLStream(input, mesh);
}

template <class T>
void tqTSTLTranslator<T>::WriteSTLHeader(misc::tqBinOutputStream& output) {
    std::uint8_t header[kHeaderSize];
    StoreHeader(header);
    output.Write(header, kHeaderSize);
}

template <class T>
void tqTSTLTranslator<T>::WriteSTLData(const Mesh& mesh, misc::tqBinOutputStream& output) {
    const auto arrays = Writable(mesh);
    const auto count = static_cast<std::int32_t>(arrays.triangles.size());
    output.Write(&count, sizeof count);
    const std::uint16_t attribute = 0;
    for (const auto& t : arrays.triangles) {
        float f[3];
        StorePoint(f, t.normal);
        output.Write(f, sizeof f);
        for (const std::uint32_t v : t.v) {
            StorePoint(f, (*arrays.vertices)[v]);
            output.Write(f, sizeof f);
        }
        output.Write(&attribute, sizeof attribute);
    }
}

template <class T>
void tqTSTLTranslator<T>::WriteSTLStreamPiecewise(const Mesh& mesh, misc::tqBinOutputStream& output) {
    Writable(mesh);
    WriteSTLHeader(output);
    WriteSTLData(mesh, output);
}

template <class T>
void tqTSTLTranslator<T>::WriteSTLStream(const Mesh& mesh, misc::tqBinOutputStream& output) {
    WriteBinaryBlocks<T>(Writable(mesh), output);
}

template <class T>
void tqTSTLTranslator<T>::WriteASTLStream(const Mesh& mesh, misc::tqBinOutputStream& output) {
    WriteTextBlocks<T>(Writable(mesh), output);
}

template <class T>
void tqTSTLTranslator<T>::WriteSTLFile(const Mesh& mesh, const misc::tqstring& path, Format format) {
    const auto arrays = Writable(mesh);
    misc::tqBinaryOFStream output(path);
    try {
        if (format == Format::Binary)
            WriteBinaryBlocks<T>(arrays, output);
        else
            WriteTextBlocks<T>(arrays, output);
        output.Close();
    } catch (...) {
        // No half-written file stays behind.
        try {
            output.Close();
        } catch (const misc::tqmiscException&) {
        }
        std::remove(misc::to_utf8(path).c_str());
        throw;
    }
}

template class tqTSTLTranslator<float>;
template class tqTSTLTranslator<double>;

}  // namespace cadcam
