// ArchiveLayout: what each member of an archive becomes, as if the archive were unpacked into a folder and read back.
#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace tqWorkRig {
namespace detail {

/// Decides from the member names alone, in central-directory order, which member is the document and which are
/// meshes. It follows a folder that the members are unpacked into: a later member with the same path replaces an
/// earlier one, a file whose path is already a folder is lost, a folder needed where a file stands cannot be made.
/// Only files directly inside "Meshes" are meshes, keyed "Meshes/" + name; "WorkRig.xml" is the top-level file of
/// that exact name. Names that could leave the folder are refused, never rewritten.
class ArchiveLayout {
public:
    enum class Role { None, Document, Mesh };

    /// True for a name that stays inside the folder: not empty; no control byte, backslash, leading '/' or drive
    /// letter; no empty, "." or ".." segment (one trailing '/' marks a folder).
    static bool IsSafeName(const std::string& name);

    /// Places the next member; false for an unsafe name or one that needs a folder where a file already stands.
    bool Add(const std::string& name);
    /// Settles the roles; false when a folder stands directly inside "Meshes": the walk over "Meshes" would meet
    /// it and could not read it as a mesh.
    bool Finish();

    /// The role of member index (in the order added), after Finish.
    Role GetRole(std::size_t index) const { return m_roles[index]; }
    /// The mesh key of a member whose role is Mesh: "Meshes/" + its file name.
    const std::string& GetMeshKey(std::size_t index) const { return m_names[index]; }

private:
    struct Node {
        bool folder;
        std::size_t member;  // the member that last wrote this file
    };

    std::vector<std::string> m_names;
    std::vector<Role> m_roles;
    std::unordered_map<std::string, Node> m_nodes;
};

}  // namespace detail
}  // namespace tqWorkRig
