// ArchiveLayout: member names checked and placed in a model of the unpacked folder.
#include "persistence/archive/archivelayout.h"

namespace tqWorkRig {
namespace detail {

namespace {

constexpr const char kDocumentPath[] = "WorkRig.xml";
constexpr const char kMeshFolder[] = "Meshes/";
constexpr std::size_t kMeshFolderLength = sizeof kMeshFolder - 1;

bool IsAsciiLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

/// A path of the form "Meshes/" + one more segment.
bool IsDirectlyInMeshes(const std::string& path) {
    return path.size() > kMeshFolderLength && path.compare(0, kMeshFolderLength, kMeshFolder) == 0 &&
           path.find('/', kMeshFolderLength) == std::string::npos;
}

}  // namespace

bool ArchiveLayout::IsSafeName(const std::string& name) {
    if (name.empty() || name[0] == '/') return false;
    for (const char c : name) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7F || c == '\\') return false;
    }
    if (name.size() >= 2 && name[1] == ':' && IsAsciiLetter(name[0])) return false;
    const std::size_t end = name.back() == '/' ? name.size() - 1 : name.size();
    for (std::size_t start = 0;;) {
        std::size_t slash = name.find('/', start);
        if (slash == std::string::npos || slash > end) slash = end;
        const std::size_t length = slash - start;
        if (length == 0 || (length == 1 && name[start] == '.') || (length == 2 && name.compare(start, 2, "..") == 0))
            return false;
        if (slash == end) return true;
        start = slash + 1;
    }
}

bool ArchiveLayout::Add(const std::string& name) {
    if (!IsSafeName(name)) return false;
    const bool folder = name.back() == '/';
    const std::string path = folder ? name.substr(0, name.size() - 1) : name;
    for (std::size_t slash = path.find('/'); slash != std::string::npos; slash = path.find('/', slash + 1)) {
        const auto parent = m_nodes.try_emplace(path.substr(0, slash), Node{true, 0});
        if (!parent.second && !parent.first->second.folder) return false;
    }
    const std::size_t index = m_names.size();
    m_names.push_back(path);
    m_roles.push_back(Role::None);
    const auto found = m_nodes.find(path);
    if (folder) {
        if (found == m_nodes.end()) m_nodes.emplace(path, Node{true, 0});
        return found == m_nodes.end() || found->second.folder;
    }
    if (found == m_nodes.end())
        m_nodes.emplace(path, Node{false, index});
    else if (!found->second.folder)
        found->second.member = index;
    // else: a file cannot be written over a folder; the member is lost, as the unpacking would lose it.
    return true;
}

bool ArchiveLayout::Finish() {
    for (const auto& entry : m_nodes) {
        const std::string& path = entry.first;
        const Node& node = entry.second;
        if (node.folder) {
            if (IsDirectlyInMeshes(path)) return false;
        } else if (path == kDocumentPath) {
            m_roles[node.member] = Role::Document;
        } else if (IsDirectlyInMeshes(path)) {
            m_roles[node.member] = Role::Mesh;
        }
    }
    return true;
}

}  // namespace detail
}  // namespace tqWorkRig
