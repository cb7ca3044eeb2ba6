// ArchiveDataReader: unzips a work rig archive into memory, loads its document and every mesh member.
//
// The members are inflated into memory, not into a temporary folder; ArchiveLayout decides what each member would
// have become in that folder, so the same members are read under the same keys. Every member is inflated and
// checked against its size and CRC, also those that are not used. Hostile archives are refused before anything is
// kept: unsafe names, too many members, too many bytes declared, and a document nested deeper than the parser's
// stack allows.
#include "persistence/archive/archivedatareader.h"

#include <cxxabi.h>
#include <minizip/unzip.h>
#include <tinyxml.h>
#include <zlib.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "cadcam/stl/tqtstltranslator.h"
#include "measures/tqunitsfactory.h"
#include "misc/tqexception.h"
#include "misc/tqmemoryiostream.h"
#include "persistence/archive/archivedata.h"
#include "persistence/archive/archivelayout.h"
#include "persistence/archive/tinyxmldepth.h"
#include "persistence/archive/zipfilefunctions.h"

namespace tqWorkRig {
namespace ArchiveDataReader {

namespace {

constexpr const char16_t kUnzipTag[] = u"tqWorkRig::ArchiveDataReader::`anonymous-namespace'::Unzip";
constexpr const char16_t kGetUnitTag[] = u"tqWorkRig::ArchiveDataReader::`anonymous-namespace'::GetUnit";
constexpr const char16_t kReadTag[] = u"tqWorkRig::ArchiveDataReader::Read";

constexpr const char kDocumentMember[] = "WorkRig.xml";
constexpr const char kRootElement[] = "WorkRig";
constexpr const char kUnitsAttribute[] = "units";
constexpr const char kMetric[] = "METRIC";
constexpr const char kInch[] = "INCH";

// Bounds against decompression bombs, summed from the central directory before anything is inflated.
constexpr std::uint64_t kMaxMembers = 65535;
constexpr std::uint64_t kMaxTotalBytes = std::uint64_t(2) << 30;
constexpr std::uint64_t kMaxDocumentBytes = std::uint64_t(256) << 20;
// TinyXML recurses once per nested element; deeper documents are refused before it parses them.
constexpr std::size_t kMaxNesting = 256;
// minizip is given this many bytes for a name and cuts longer ones.
constexpr uLong kNameBufferSize = 256;

constexpr int kStored = 0;
constexpr int kDeflated = 8;
// Deflate cannot expand more than about 1032 to 1; a first allocation above that is not trusted.
constexpr std::uint64_t kDeflateRatio = 1032;
constexpr std::size_t kInputBlock = std::size_t(1) << 20;
constexpr std::size_t kScratchBlock = std::size_t(1) << 16;
constexpr std::size_t kLargestStep = std::size_t(1) << 30;

/// The inflated bytes of one kept member, followed by `padding` zero bytes.
struct MemberBytes {
    std::unique_ptr<char[]> data;
    std::size_t size = 0;
    std::size_t capacity = 0;
};

struct Unzipped {
    bool hasDocument = false;
    MemberBytes document;
    /// Mesh members in central-directory order, each with its key.
    std::vector<std::pair<std::string, MemberBytes>> meshes;
};

struct Member {
    std::string name;
    unz_file_info64 info;
    unz64_file_pos position;
};

/// Closes the archive however Unzip ends.
class OpenArchive {
public:
    explicit OpenArchive(unzFile archive) : m_archive(archive) {}
    OpenArchive(const OpenArchive&) = delete;
    OpenArchive& operator=(const OpenArchive&) = delete;
    ~OpenArchive() {
        if (m_archive != nullptr) unzClose(m_archive);
    }
    unzFile Get() const { return m_archive; }
    int Close() {
        const int result = unzClose(m_archive);
        m_archive = nullptr;
        return result;
    }

private:
    unzFile m_archive;
};

/// Inflates members straight from the archive file, with the checks the bounds need: the member's data must lie in
/// the file, inflate to exactly its declared size (never one byte more) and match its CRC.
class MemberReader {
public:
    explicit MemberReader(detail::ZipReadSource& source)
        : m_source(source), m_input(new char[kInputBlock]), m_scratch(new char[kScratchBlock]) {}

    /// Reads the member whose data starts at offset; into keep (with padding zero bytes after it) or nowhere.
    bool Read(std::uint64_t offset, const unz_file_info64& info, MemberBytes* keep, std::size_t padding) {
        const std::uint64_t fileSize = m_source.GetSize();
        if (offset > fileSize || info.compressed_size > fileSize - offset) return false;
        m_offset = offset;
        m_left = info.compressed_size;
        m_declared = info.uncompressed_size;
        m_keep = keep;
        m_padding = padding;
        m_produced = 0;
        m_crc = crc32(0L, Z_NULL, 0);
        if (keep != nullptr) {
            const std::uint64_t bound = info.compression_method == kStored
                                            ? info.compressed_size
                                            : info.compressed_size * kDeflateRatio + kScratchBlock;
            Allocate(static_cast<std::size_t>(std::min(m_declared, bound)));
        }
        bool ok = false;
        if (info.compression_method == kStored)
            ok = info.compressed_size == info.uncompressed_size && Copy();
        else if (info.compression_method == kDeflated)
            ok = Inflate();
        if (!ok || m_produced != m_declared || m_crc != info.crc) return false;
        if (keep != nullptr) {
            keep->size = static_cast<std::size_t>(m_produced);
            std::memset(keep->data.get() + keep->size, 0, padding);
        }
        return true;
    }

private:
    void Allocate(std::size_t capacity) {
        std::unique_ptr<char[]> grown(new char[capacity + m_padding]);
        if (m_produced > 0) std::memcpy(grown.get(), m_keep->data.get(), static_cast<std::size_t>(m_produced));
        m_keep->data = std::move(grown);
        m_keep->capacity = capacity;
    }

    /// Where the next output goes and how much fits; past the declared size, a one-byte probe.
    char* Room(std::size_t& room) {
        if (m_produced == m_declared) {
            room = 1;
            return &m_probe;
        }
        const std::uint64_t left = m_declared - m_produced;
        if (m_keep == nullptr) {
            room = static_cast<std::size_t>(std::min<std::uint64_t>(left, kScratchBlock));
            return m_scratch.get();
        }
        if (m_produced == m_keep->capacity)
            Allocate(static_cast<std::size_t>(
                std::min<std::uint64_t>(m_declared, std::max<std::uint64_t>(2 * m_keep->capacity, kScratchBlock))));
        room = std::min(m_keep->capacity - static_cast<std::size_t>(m_produced), kLargestStep);
        return m_keep->data.get() + m_produced;
    }

    /// Up to maxCount of the member's stored bytes into destination; false on a device error or an early end.
    bool NextInput(char* destination, std::size_t maxCount, std::size_t& count) {
        count = static_cast<std::size_t>(std::min<std::uint64_t>(m_left, maxCount));
        std::size_t read = 0;
        if (!m_source.ReadAt(m_offset, destination, count, read) || read != count) return false;
        m_offset += count;
        m_left -= count;
        return true;
    }

    /// A stored member: its bytes go straight to their place.
    bool Copy() {
        while (m_left > 0) {
            std::size_t room = 0;
            char* out = Room(room);
            std::size_t count = 0;
            if (!NextInput(out, room, count)) return false;
            m_crc = crc32(m_crc, reinterpret_cast<const Bytef*>(out), static_cast<uInt>(count));
            m_produced += count;
        }
        return true;
    }

    bool Inflate() {
        z_stream stream{};
        if (inflateInit2(&stream, -MAX_WBITS) != Z_OK) throw std::bad_alloc();
        struct End {
            z_stream& s;
            ~End() { inflateEnd(&s); }
        } end{stream};
        for (;;) {
            if (stream.avail_in == 0 && m_left > 0) {
                std::size_t count = 0;
                if (!NextInput(m_input.get(), kInputBlock, count)) return false;
                stream.next_in = reinterpret_cast<Bytef*>(m_input.get());
                stream.avail_in = static_cast<uInt>(count);
            }
            const bool probing = m_produced == m_declared;
            std::size_t room = 0;
            char* out = Room(room);
            stream.next_out = reinterpret_cast<Bytef*>(out);
            stream.avail_out = static_cast<uInt>(room);
            const int result = inflate(&stream, Z_NO_FLUSH);
            const std::size_t made = room - stream.avail_out;
            // A member that inflates to more than it declared is refused, not cut.
            if (probing && made > 0) return false;
            m_crc = crc32(m_crc, reinterpret_cast<const Bytef*>(out), static_cast<uInt>(made));
            m_produced += made;
            if (result == Z_STREAM_END) return true;
            if (result == Z_BUF_ERROR && stream.avail_in == 0 && m_left == 0) return false;  // data ends early
            if (result != Z_OK && result != Z_BUF_ERROR) return false;
        }
    }

    detail::ZipReadSource& m_source;
    std::unique_ptr<char[]> m_input;
    std::unique_ptr<char[]> m_scratch;
    char m_probe = 0;
    std::uint64_t m_offset = 0;
    std::uint64_t m_left = 0;
    std::uint64_t m_declared = 0;
    std::uint64_t m_produced = 0;
    uLong m_crc = 0;
    MemberBytes* m_keep = nullptr;
    std::size_t m_padding = 0;
};

/// Opens the archive, walks its central directory once, refuses what is unsafe, then inflates every member.
Unzipped Unzip(const tqstring& file) {
    const auto fail = [&file]() { misc::ThrowFailure(kUnzipTag, u"Error when unzipping '" + file + u"'."); };
    detail::ZipReadSource source(misc::to_utf8(file));
    OpenArchive archive(unzOpen2_64(detail::kZipDummyPath, source.GetFunctions()));
    if (archive.Get() == nullptr) fail();

    unz_global_info64 global;
    if (unzGetGlobalInfo64(archive.Get(), &global) != UNZ_OK || global.number_entry > kMaxMembers) fail();
    std::vector<Member> members;
    detail::ArchiveLayout layout;
    std::uint64_t total = 0;
    // The end of the list and a failure to step to the next member are not told apart: both end the walk.
    for (int step = unzGoToFirstFile(archive.Get()); step == UNZ_OK; step = unzGoToNextFile(archive.Get())) {
        if (members.size() == kMaxMembers) fail();
        Member member;
        // One byte more than minizip may fill, and zeroed: minizip leaves a cut name unterminated.
        char name[kNameBufferSize + 1] = {};
        if (unzGetCurrentFileInfo64(archive.Get(), &member.info, name, kNameBufferSize, nullptr, 0, nullptr, 0) !=
            UNZ_OK)
            fail();
        const std::size_t length = strnlen(name, kNameBufferSize);
        // A zero byte inside the name is a control byte.
        if (length < std::min(member.info.size_filename, kNameBufferSize)) fail();
        member.name.assign(name, length);
        if ((member.info.flag & 1) != 0) fail();  // encrypted
        if (member.info.uncompressed_size > kMaxTotalBytes - total) fail();
        total += member.info.uncompressed_size;
        if (member.name == kDocumentMember && member.info.uncompressed_size > kMaxDocumentBytes) fail();
        if (!layout.Add(member.name)) fail();
        if (unzGetFilePos64(archive.Get(), &member.position) != UNZ_OK) fail();
        members.push_back(std::move(member));
    }
    if (!layout.Finish()) fail();

    Unzipped unzipped;
    MemberReader reader(source);
    for (std::size_t i = 0; i < members.size(); ++i) {
        const Member& member = members[i];
        // minizip checks the local header against the central directory and finds where the data starts.
        int method = 0, level = 0;
        if (unzGoToFilePos64(archive.Get(), &member.position) != UNZ_OK ||
            unzOpenCurrentFile2(archive.Get(), &method, &level, 1) != UNZ_OK)
            fail();
        const ZPOS64_T offset = unzGetCurrentFileZStreamPos64(archive.Get());
        if (unzCloseCurrentFile(archive.Get()) != UNZ_OK) fail();
        const detail::ArchiveLayout::Role role = layout.GetRole(i);
        if (role == detail::ArchiveLayout::Role::Document) {
            unzipped.document = MemberBytes();
            if (!reader.Read(offset, member.info, &unzipped.document, detail::kTinyXmlPadding + 1)) fail();
            unzipped.hasDocument = true;
        } else if (role == detail::ArchiveLayout::Role::Mesh) {
            unzipped.meshes.emplace_back(layout.GetMeshKey(i), MemberBytes());
            if (!reader.Read(offset, member.info, &unzipped.meshes.back().second, 0)) fail();
        } else if (!reader.Read(offset, member.info, nullptr, 0)) {
            fail();
        }
    }
    if (archive.Close() != UNZ_OK) misc::ThrowFailure(kUnzipTag, u"Error when closing zip archive '" + file + u"'.");
    return unzipped;
}

/// Parses the document as TiXmlDocument::LoadFile would: an empty member fails, line ends become '\n' up to the
/// first zero byte, and the encoding is left to TinyXML.
void LoadDocument(Unzipped& unzipped, TiXmlDocument& document, const tqstring& file) {
    const auto corrupted = [&file]() { misc::ThrowFailure(u"Corrupted XML file in archive: " + file); };
    if (!unzipped.hasDocument || unzipped.document.size == 0) corrupted();
    char* const text = unzipped.document.data.get();
    text[unzipped.document.size] = 0;
    const char* p = text;
    char* q = text;
    while (*p) {
        if (*p == '\r') {
            *q++ = '\n';
            if (*++p == '\n') ++p;
        } else {
            *q++ = *p++;
        }
    }
    *q = 0;
    if (detail::ScanTinyXml(text, kMaxNesting).deeper) corrupted();
    document.Parse(text, nullptr, TIXML_DEFAULT_ENCODING);
    if (document.Error()) corrupted();
}

/// The unit of the first top-level "WorkRig" element whose "units" is "METRIC" or "INCH".
measures::tqUnitsFactory::Units GetUnit(const TiXmlDocument& document) {
    for (const TiXmlNode* node = document.FirstChild(); node != nullptr; node = node->NextSibling()) {
        const TiXmlElement* element = node->ToElement();
        if (element == nullptr || element->ValueStr() != kRootElement) continue;
        // A missing or unknown unit passes the element over.
        const char* units = element->Attribute(kUnitsAttribute);
        if (units == nullptr) continue;
        if (std::strcmp(units, kMetric) == 0) return measures::tqUnitsFactory::Metric;
        if (std::strcmp(units, kInch) == 0) return measures::tqUnitsFactory::Inch;
    }
    misc::ThrowFailure(kGetUnitTag, u"WR: Unable to read the unit from XML-Document");
}

misc::tqAutoPointer<ArchiveDataInterface> Load(const tqstring& file) {
    Unzipped unzipped = Unzip(file);
    misc::tqAutoPointer<ArchiveData> data(new ArchiveData);
    LoadDocument(unzipped, data->Document(), file);
    unzipped.document = MemberBytes();
    const measures::tqUnitsFactory::Units units = GetUnit(data->Document());
    // Every mesh member is read, used or not: a corrupt one fails the load with the STL reader's error.
    for (auto& entry : unzipped.meshes) {
        MemberBytes& bytes = entry.second;
        ArchiveData::MeshPointer mesh(new cadcam::tqTMesh<double>(units));
        misc::tqMemoryIOStream input(bytes.data.get(), bytes.size, bytes.size);
        cadcam::tqTSTLTranslator<double>().ReadSTLStream(input, *mesh);
        bytes = MemberBytes();
        data->SetMesh(misc::from_utf8_lenient(entry.first.data(), entry.first.size()), mesh);
    }
    return data;
}

}  // namespace

misc::tqAutoPointer<ArchiveDataInterface> Read(const tqstring& fileName) {
    // Only the library's own failures leave the reader.
    try {
        return Load(fileName);
    } catch (const misc::tqException&) {
        throw;
    } catch (const abi::__forced_unwind&) {
        throw;
    } catch (const std::bad_alloc&) {
        throw misc::tqMemoryException(0, tqstring(kReadTag) + u": Not enough memory to read '" + fileName + u"'.");
    } catch (const std::exception& e) {
        misc::ThrowFailure(kReadTag, u"Unexpected failure when reading '" + fileName + u"': " + tqstring(e.what()));
    } catch (...) {
        misc::ThrowFailure(kReadTag, u"Unexpected failure when reading '" + fileName + u"'.");
    }
}

}  // namespace ArchiveDataReader
}  // namespace tqWorkRig
