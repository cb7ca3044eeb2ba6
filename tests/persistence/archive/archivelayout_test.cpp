// ArchiveLayout: which names are safe, and what the unpacked folder would have made of each member.
#include "persistence/archive/archivelayout.h"

#include "support/tqtest.h"

using tqWorkRig::detail::ArchiveLayout;
using Role = ArchiveLayout::Role;

TEST(ArchiveLayout, SafeNames) {
    for (const char* name : {"WorkRig.xml", "Meshes/Mesh_1.stl", "Meshes/", "a/b/c", "a.b/..c", "...", "x..",
                             "Mesh es/ü", "a/b:c", "1:x"}) {
        EXPECT_TRUE(ArchiveLayout::IsSafeName(name)) << name;
    }
    for (const std::string& name :
         {std::string(), std::string("/"), std::string("/a"), std::string(".."), std::string("a/../b"),
          std::string("a/.."), std::string("./a"), std::string("a/./b"), std::string("a//b"), std::string("a//"),
          std::string("a\\b"), std::string("\\a"), std::string("C:a"), std::string("z:/a"), std::string("a\tb"),
          std::string("a\x7f"), std::string("a\0b", 3), std::string("\x1b[2J")}) {
        EXPECT_FALSE(ArchiveLayout::IsSafeName(name)) << name;
    }
}

TEST(ArchiveLayout, RolesAsTheFolderWalkSeesThem) {
    ArchiveLayout layout;
    for (const char* name : {"Meshes/a.stl", "WorkRig.xml", "Meshes/", "Meshes/a.stl", "meshes/b.stl", "Other/c.stl",
                             "d.stl", "WorkRig.xml", "Meshes/e/", "Meshes/e", "Deep/er/f"})
        ASSERT_TRUE(layout.Add(name)) << name;
    // "Meshes/e/" made a folder inside Meshes, which the walk could not read.
    EXPECT_FALSE(layout.Finish());

    ArchiveLayout clean;
    for (const char* name : {"Meshes/a.stl", "WorkRig.xml", "Meshes/", "Meshes/a.stl", "meshes/b.stl", "Other/c.stl",
                             "d.stl", "WorkRig.xml", "Deep/er/f"})
        ASSERT_TRUE(clean.Add(name)) << name;
    ASSERT_TRUE(clean.Finish());
    const Role expected[] = {Role::None, Role::None, Role::None,     Role::Mesh, Role::None,
                             Role::None, Role::None, Role::Document, Role::None};
    for (std::size_t i = 0; i < 9; ++i) EXPECT_EQ(clean.GetRole(i), expected[i]) << i;
    EXPECT_EQ(clean.GetMeshKey(3), "Meshes/a.stl");
}

TEST(ArchiveLayout, FilesAndFoldersOfOneName) {
    // A folder needed where a file stands cannot be made.
    ArchiveLayout a;
    ASSERT_TRUE(a.Add("x"));
    EXPECT_FALSE(a.Add("x/y"));
    ArchiveLayout b;
    ASSERT_TRUE(b.Add("x"));
    EXPECT_FALSE(b.Add("x/"));
    // A file over a folder is lost; the folder stays.
    ArchiveLayout c;
    ASSERT_TRUE(c.Add("WorkRig.xml/"));
    ASSERT_TRUE(c.Add("WorkRig.xml"));
    ASSERT_TRUE(c.Finish());
    EXPECT_EQ(c.GetRole(1), Role::None);
    // Unsafe names are refused by Add.
    ArchiveLayout d;
    EXPECT_FALSE(d.Add("../x"));
}
