// ArchiveLayout: which names are safe. What the unpacked folder makes of each member shows through the reader's
// tests (archivedatareader_test.cpp), which read every kind of clash.
#include "persistence/archive/archivelayout.h"

#include "support/tqtest.h"

using tqWorkRig::detail::ArchiveLayout;

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
