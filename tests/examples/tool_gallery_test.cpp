// Runs tool_gallery into a fresh folder, then reads its output back: one closed, outward STL mesh per document
// type, read with the library's reader, and a well-formed SVG sheet with one cell per type.
// Usage: tool_gallery_test <tool_gallery executable> <output folder> [gtest flags]
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <tinyxml.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "cadcam/geometry/tqtmesh.h"
#include "cadcam/stl/tqtstltranslator.h"
#include "libraries/cadcam/tools/geometry/meshchecks.h"
#include "misc/tqexception.h"

namespace {

namespace fs = std::filesystem;
using Mesh = cadcam::tqTMesh<double>;

std::string g_gallery;
fs::path g_folder;
int g_exitCode = -1;

/// The type names the document writes, one per tool class but tqPotGrinderTool.
// clang-format off
const std::set<std::string> kTypeNames = {
    "BarrelAdvancedMill", "BarrelBarrSecMill", "BarrelDProfMill", "BarrelLensMill", "BarrelMill",
    "BarrelTangentMill", "BarrelTangentMillConicalShaft", "BarrelTaperMill", "BoreBar", "BullMill", "CSink",
    "ChainsawTool", "ChamferMill", "ContourBore", "ContourTurningTool", "ConvexTipMill", "CtrDrill",
    "DiamondTurningTool", "DoveMill", "Drill", "EndMill", "FaceMill", "GenericExtrudedTool", "GenericRevolvedTool",
    "GenericSawingTool", "GenericTool", "GrooveTurningTool", "HexagonalTurningTool", "LollipopMill",
    "OctagonalTurningTool", "OpticDiamondTool", "ParallelogramTurningTool", "PentagonalTurningTool", "RadMill",
    "Reamer", "RoundTurningTool", "SlotMill", "SpeedShapeTool", "SphereMill", "SpotDrill", "SquareTurningTool",
    "TapLH", "TapRH", "TaperMill", "ThreadTapTool", "TriangleTurningTool", "WireTool"};
// clang-format on

/// Runs the gallery once for every test of this file, into a folder emptied first.
class GalleryRun : public ::testing::Environment {
public:
    void SetUp() override {
        fs::remove_all(g_folder);
        const fs::path log = g_folder.string() + ".log";
        const std::string command = "'" + g_gallery + "' '" + g_folder.string() + "' > '" + log.string() + "' 2>&1";
        const int status = std::system(command.c_str());
        g_exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
};

std::set<std::string> StlStems() {
    std::set<std::string> stems;
    if (!fs::is_directory(g_folder / "stl")) return stems;
    for (const auto& entry : fs::directory_iterator(g_folder / "stl")) {
        if (entry.path().extension() == ".stl") stems.insert(entry.path().stem().string());
    }
    return stems;
}

/// A part of an STL mesh that closes on itself, as a mesh whose coincident corners are one vertex.
struct Shell {
    std::size_t first;  // index of its first triangle in the file
    Mesh mesh;
};

/// Splits an STL mesh (three vertices of its own per triangle) into the shortest runs of consecutive triangles
/// whose edges all pair up: the gallery appends the parts of a tool one after another, each closed, and parts
/// that touch would otherwise share edges. Returns the index of the first triangle that belongs to no closed
/// shell, which is the triangle count when all close.
std::size_t SplitIntoShells(const Mesh& stl, std::vector<Shell>& shells) {
    using Place = std::tuple<double, double, double>;
    std::map<Place, std::uint32_t> places;
    std::vector<std::uint32_t> corner(stl.GetTriangleCount() * 3);
    for (std::size_t t = 0; t < stl.GetTriangleCount(); ++t) {
        for (int k = 0; k < 3; ++k) {
            const auto& p = stl.Corner(t, k);
            corner[t * 3 + k] =
                places.emplace(Place(p.x, p.y, p.z), static_cast<std::uint32_t>(places.size())).first->second;
        }
    }
    std::map<std::pair<std::uint32_t, std::uint32_t>, int> open;
    std::size_t first = 0;
    for (std::size_t t = 0; t < stl.GetTriangleCount(); ++t) {
        for (int k = 0; k < 3; ++k) {
            const std::uint32_t a = corner[t * 3 + k], b = corner[t * 3 + (k + 1) % 3];
            const auto reverse = open.find({b, a});
            if (reverse != open.end()) {
                if (--reverse->second == 0) open.erase(reverse);
            } else {
                ++open[{a, b}];
            }
        }
        if (!open.empty()) continue;
        Shell shell{first, Mesh(stl.GetUnits())};
        std::map<std::uint32_t, std::uint32_t> local;
        for (std::size_t s = first; s <= t; ++s) {
            std::uint32_t v[3];
            for (int k = 0; k < 3; ++k) {
                const auto [at, added] = local.emplace(corner[s * 3 + k], 0);
                if (added) at->second = shell.mesh.AddVertex(stl.Corner(s, k));
                v[k] = at->second;
            }
            shell.mesh.AddTriangle(v[0], v[1], v[2], (*stl.GetTriangles())[s].normal);
        }
        shells.push_back(std::move(shell));
        first = t + 1;
    }
    return first;
}

TEST(ToolGallery, RunsWithoutFailure) { EXPECT_EQ(g_exitCode, 0) << "see " << g_folder.string() << ".log"; }

TEST(ToolGallery, WritesOneMeshPerDocumentTypeAndOneSheet) {
    EXPECT_EQ(StlStems(), kTypeNames);
    EXPECT_TRUE(fs::is_regular_file(g_folder / "gallery.svg"));
}

TEST(ToolGallery, EveryMeshIsClosedOutwardAndEncloses) {
    const cadcam::tqTSTLTranslator<double> reader;
    for (const std::string& name : StlStems()) {
        SCOPED_TRACE(name);
        const fs::path path = g_folder / "stl" / (name + ".stl");
        // The binary header's count must match the records: 84 bytes and 50 per triangle.
        Mesh mesh;
        try {
            reader.ReadSTLFile(path.string(), mesh);
        } catch (const misc::tqException& e) {
            ADD_FAILURE() << misc::to_utf8(e.GetMessage());
            continue;
        }
        ASSERT_GT(mesh.GetTriangleCount(), 0u);
        EXPECT_EQ(fs::file_size(path), 84 + 50 * mesh.GetTriangleCount());
        std::vector<Shell> shells;
        const std::size_t open = SplitIntoShells(mesh, shells);
        EXPECT_EQ(open, mesh.GetTriangleCount()) << "the triangles from " << open << " on do not close into a shell";
        double volume = 0;
        for (const Shell& shell : shells) {
            EXPECT_EQ(tqtest::MeshDefects(shell.mesh), "") << "shell from triangle " << shell.first;
            volume += tqtest::SignedVolume(shell.mesh);
        }
        EXPECT_GT(volume, 0);
    }
}

/// Every element of the tree below (and including) element, in document order.
void Collect(const TiXmlElement* element, std::vector<const TiXmlElement*>& all) {
    all.push_back(element);
    for (const TiXmlElement* child = element->FirstChildElement(); child; child = child->NextSiblingElement())
        Collect(child, all);
}

TEST(ToolGallery, SheetIsWellFormedWithOneCellPerType) {
    TiXmlDocument sheet((g_folder / "gallery.svg").string().c_str());
    ASSERT_TRUE(sheet.LoadFile()) << sheet.ErrorDesc() << " at row " << sheet.ErrorRow();
    const TiXmlElement* root = sheet.RootElement();
    ASSERT_NE(root, nullptr);
    EXPECT_STREQ(root->Value(), "svg");
    std::vector<const TiXmlElement*> all;
    Collect(root, all);
    std::multiset<std::string> cells;
    for (const TiXmlElement* e : all) {
        const char* type = e->Attribute("class");
        if (std::string(e->Value()) == "g" && type != nullptr && std::string(type) == "tool")
            cells.insert(e->Attribute("id") ? e->Attribute("id") : "");
    }
    EXPECT_EQ(std::set<std::string>(cells.begin(), cells.end()), kTypeNames);
    EXPECT_EQ(cells.size(), kTypeNames.size());
}

}  // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s <tool_gallery executable> <output folder> [gtest flags]\n", argv[0]);
        return 2;
    }
    g_gallery = argv[1];
    g_folder = argv[2];
    ::testing::AddGlobalTestEnvironment(new GalleryRun);
    return RUN_ALL_TESTS();
}
