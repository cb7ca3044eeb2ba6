// tqTSTLTranslator: reads binary and text STL into a mesh and writes a mesh as binary or text STL.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

#include "cadcam/geometry/tqtmesh.h"
#include "misc/export.h"
#include "misc/tqstring.h"

namespace misc {
class tqBinInputStream;
class tqBinOutputStream;
}  // namespace misc

namespace cadcam {

/// Translates between STL and tqTMesh<T>.
///
/// Reading appends each triangle as three vertices of its own (coincident vertices are not merged) with the
/// normal as stored; a failure leaves the mesh as it was and throws misc::tqSTLParserException. Writing
/// narrows every coordinate to float: values beyond +-3.0000000054977558e+38 are clamped to it, magnitudes
/// below 1.1754943508222875e-38 become 0. Text is written with the shortest decimal form that reads back as
/// the same float. A mesh the format cannot hold (more than 2^31 - 1 triangles, or a triangle that refers to
/// a missing vertex) is refused before anything is written, with "Can not use ... to write an STL file.".
template <class T>
class TQ_EXPORT tqTSTLTranslator {
public:
    using Mesh = tqTMesh<T>;
    /// Told the phase ("read triangle data", "finish mesh") and the fraction done, a bounded number of times.
    /// An exception thrown by the callback cancels the read and leaves the mesh as it was.
    using ProgressCallback = std::function<void(const misc::tqstring& label, double fraction)>;
    enum class Format { Binary, Text };

    static constexpr std::size_t kHeaderSize = 80;
    static constexpr std::size_t kTriangleRecordSize = 50;

    explicit tqTSTLTranslator(ProgressCallback progress = ProgressCallback());

    /// Reads binary or text STL, telling them apart by content: a stream whose size is exactly 84 plus 50 times
    /// the count it holds at byte 80 is binary, even when it begins with "solid"; otherwise one that begins with
    /// "solid" is text and any other is binary.
    void ReadSTLStream(misc::tqBinInputStream& input, Mesh& mesh) const;
    /// Reads binary STL: header, count and records. Where the stream knows its size the count must fit it.
    void ParseSTLStream(misc::tqBinInputStream& input, Mesh& mesh) const;
    /// Reads text STL through tqASTLParser.
    void ParseASTLStream(misc::tqBinInputStream& input, Mesh& mesh) const;
    /// Reads an STL file of either form; a file that cannot be opened throws misc::tqmiscException.
    void ReadSTLFile(const misc::tqstring& path, Mesh& mesh) const;

    /// Writes the 80-byte header "STL File" and 72 blanks, in one write.
    static void WriteSTLHeader(misc::tqBinOutputStream& output);
    /// Writes the count (one 4-byte write) and for each triangle its normal and three corners (four 12-byte
    /// writes) and the attribute (one 2-byte write): the piecewise form that follows WriteSTLHeader.
    static void WriteSTLData(const Mesh& mesh, misc::tqBinOutputStream& output);
    /// WriteSTLHeader and WriteSTLData.
    static void WriteSTLStreamPiecewise(const Mesh& mesh, misc::tqBinOutputStream& output);
    /// The same bytes as WriteSTLStreamPiecewise, written in large blocks.
    static void WriteSTLStream(const Mesh& mesh, misc::tqBinOutputStream& output);
    /// Writes text STL: "solid ascii", the facets, "endsolid".
    static void WriteASTLStream(const Mesh& mesh, misc::tqBinOutputStream& output);
    /// Writes a file of the given form, replacing any file there; file failures throw misc::tqmiscException.
    static void WriteSTLFile(const Mesh& mesh, const misc::tqstring& path, Format format = Format::Binary);

    /// The float stored for a coordinate.
    static float Narrow(T value);

private:
    ProgressCallback m_progress;
};

extern template class tqTSTLTranslator<float>;
extern template class tqTSTLTranslator<double>;

}  // namespace cadcam
