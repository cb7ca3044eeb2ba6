// ArchiveLayout: which names are safe, and what the unpacked folder would have made of each member.
#include "persistence/archive/archivelayout.h"

#include "support/tqtest.h"

using tqWorkRig::detail::ArchiveLayout;
using Role = ArchiveLayout::Role;

TEST(ArchiveLayout, SafeNames) {
    for (const char* name : {"WorkRig.xml", "Meshes/Mesh_1.stl", "Meshes/", "a/b/c", "a.b/..c", "...", "x..",
                             "Mesh es/\xC3\xBC", "a/b:c", "1:x"})
        EXPECT_TRUE(ArchiveLayout::IsSafeName(name)) << name;
    // Names that would leave the folder or could not be made in it.
    for (const char* name : {"", "..", "../escape.stl", "Meshes/../../x", "Meshes/..", "a/../b", "/", "/tmp/x",
                             // Backslashes and drive letters.
                             "Meshes\\..\\x", "Meshes\\x", "\\a", "C:x", "c:/x", "z:/a",
                             // Empty and "." segments.
                             "Meshes//x", "//x", "a//", "a///", "./WorkRig.xml", "a/./b", "Meshes/x/.",
                             // Control bytes.
                             "x\x01.stl", "Meshes/x\x1f", "Meshes/\x7fx", "a\tb", "Meshes/x\n.stl", "\x1b[2J"})
        EXPECT_FALSE(ArchiveLayout::IsSafeName(name)) << name;
    EXPECT_FALSE(ArchiveLayout::IsSafeName(std::string("a\0b", 3)));
}

TEST(ArchiveLayout, RolesAsTheFolderWalkSeesThem) {
    ArchiveLayout layout;
    for (const char* name : {"Meshes/a.stl", "WorkRig.xml", "Meshes/", "Meshes/a.stl", "meshes/b.stl", "Other/c.stl",
                             "d.stl", "WorkRig.xml", "Deep/er/f"})
        ASSERT_TRUE(layout.Add(name)) << name;
    ASSERT_TRUE(layout.Finish());
    // A later member of the same name replaces the earlier.
    const Role expected[] = {Role::None, Role::None, Role::None,     Role::Mesh, Role::None,
                             Role::None, Role::None, Role::Document, Role::None};
    for (std::size_t i = 0; i < 9; ++i) EXPECT_EQ(layout.GetRole(i), expected[i]) << i;
    EXPECT_EQ(layout.GetMeshKey(3), "Meshes/a.stl");
    // A folder inside "Meshes" could not be read by the walk.
    ArchiveLayout folder;
    ASSERT_TRUE(folder.Add("Meshes/e/"));
    EXPECT_FALSE(folder.Finish());
}

TEST(ArchiveLayout, FilesAndFoldersOfOneName) {
    // A folder needed where a file stands cannot be made.
    for (const char* folder : {"x/y", "x/"}) {
        ArchiveLayout layout;
        ASSERT_TRUE(layout.Add("x"));
        EXPECT_FALSE(layout.Add(folder)) << folder;
    }
    // A file over a folder is lost; the folder stays.
    ArchiveLayout layout;
    ASSERT_TRUE(layout.Add("WorkRig.xml/"));
    ASSERT_TRUE(layout.Add("WorkRig.xml"));
    ASSERT_TRUE(layout.Finish());
    EXPECT_EQ(layout.GetRole(1), Role::None);
    EXPECT_FALSE(layout.Add("../x"));
}
