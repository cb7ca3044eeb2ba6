// tool_gallery OUTDIR: one typical tool of each document type as a binary STL mesh of all its parts placed
// (OUTDIR/stl/<TypeName>.stl), and one SVG sheet with every tool's outline (OUTDIR/gallery.svg).
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "cadcam/geometry/tq3dboundingbox.h"
#include "cadcam/geometry/tqtmesh.h"
#include "cadcam/stl/tqtstltranslator.h"
#include "cadcam/tools/geometry/tqsoliddefinitionboundingbox.h"
#include "cadcam/tools/geometry/tqtoolboundingbox.h"
#include "cadcam/tools/geometry/tqtooltogenerictoolconverter.h"
#include "gallery/catalogue.h"
#include "gallery/outlines.h"
#include "gallery/placedparts.h"
#include "gallery/svgsheet.h"
#include "misc/tqexception.h"

namespace {

namespace fs = std::filesystem;
using gallery::Role;

const char* RoleName(Role role) {
    switch (role) {
        case Role::Cutting:
            return "cutting part";
        case Role::NonCutting:
            return "non-cutting part";
        case Role::Arbor:
            return "arbor";
        case Role::Holder:
            return "holder";
    }
    return "part";
}

/// Notes where a drawing and its mesh disagree on the extent along X or Z by more than the chords of either
/// may stay inside an arc (1 % of its radius for the mesh).
void CompareExtents(const std::string& typeName, const gallery::Outline& outline, const cadcam::tqTMesh<double>& mesh) {
    gallery::PlanePoint lower, upper;
    if (mesh.GetTriangleCount() == 0 || !gallery::Extent(outline, lower, upper)) return;
    cadcam::tq3dBoundingBox box;
    for (const auto& vertex : *mesh.GetVertices()) box.Add(vertex);
    const double size = std::max({1.0, upper.x - lower.x, upper.z - lower.z});
    const double room = 0.011 * size;
    if (std::fabs(box.GetMin().x - lower.x) > room || std::fabs(box.GetMax().x - upper.x) > room ||
        std::fabs(box.GetMin().z - lower.z) > room || std::fabs(box.GetMax().z - upper.z) > room) {
        std::printf("  note: %s %s: drawing spans x %.3f..%.3f z %.3f..%.3f, mesh x %.3f..%.3f z %.3f..%.3f\n",
                    typeName.c_str(), RoleName(outline.role), lower.x, upper.x, lower.z, upper.z, box.GetMin().x,
                    box.GetMax().x, box.GetMin().z, box.GetMax().z);
    }
}

/// Meshes and outlines of every part of one tool; writes its STL file. Throws on any failure.
gallery::SheetCell Render(const gallery::GalleryTool& item, const fs::path& stlFolder) {
    gallery::SheetCell cell;
    cell.typeName = item.typeName;
    const auto generic = cadcam::tqToolToGenericToolConverter::Convert(*item.tool);
    cadcam::tqTMesh<double> whole(item.tool->GetUnits());
    for (const gallery::PlacedPart& placed : gallery::PlacedParts(*generic)) {
        const auto mesh = gallery::PlacedMesh(placed);
        // A part that has extent must have triangles; an empty one (a turning arbor) has neither.
        if (mesh->GetTriangleCount() == 0 && placed.part->GetSolid().IsNotNull() &&
            cadcam::tqSolidDefinitionBoundingBox::Of(*placed.part->GetSolid()).IsInitialized()) {
            throw std::runtime_error(std::string("the ") + RoleName(placed.role) + " has extent but no triangles");
        }
        gallery::AppendMesh(whole, *mesh);
        cell.outlines.push_back(gallery::OutlineOf(placed, *mesh));
        CompareExtents(item.typeName, cell.outlines.back(), *mesh);
    }
    if (whole.GetTriangleCount() == 0) throw std::runtime_error("the tool has no triangles");
    cadcam::tqTSTLTranslator<double>::WriteSTLFile(whole, (stlFolder / (item.typeName + ".stl")).string());
    cell.triangles = whole.GetTriangleCount();
    cell.height = cadcam::tqToolBoundingBox::HeightOf(
        *item.tool, cadcam::tqToolBoundingBox::kCutting | cadcam::tqToolBoundingBox::kNonCutting |
                        cadcam::tqToolBoundingBox::kArbor | cadcam::tqToolBoundingBox::kHolder);
    return cell;
}

std::string MessageOf(const std::exception_ptr& error) {
    try {
        std::rethrow_exception(error);
    } catch (const misc::tqException& e) {
        return misc::to_utf8(e.GetMessage());
    } catch (const std::exception& e) {
        return e.what();
    } catch (...) {
        return "unknown exception";
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s OUTDIR\n", argc > 0 ? argv[0] : "tool_gallery");
        return 2;
    }
    const fs::path folder(argv[1]);
    const fs::path stlFolder = folder / "stl";
    try {
        fs::create_directories(stlFolder);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "tool_gallery: cannot create %s: %s\n", stlFolder.string().c_str(), e.what());
        return 1;
    }

    const std::vector<gallery::GalleryTool> catalogue = gallery::BuildCatalogue();
    int failures = 0;
    if (const std::string gap = gallery::CheckCoverage(catalogue); !gap.empty()) {
        std::fprintf(stderr, "tool_gallery: the catalogue does not match the tool classes: %s\n", gap.c_str());
        ++failures;
    }

    std::vector<gallery::SheetCell> cells;
    for (const gallery::GalleryTool& item : catalogue) {
        gallery::SheetCell cell;
        cell.typeName = item.typeName;
        cell.failure = item.failure.empty() ? std::string() : "cannot build: " + item.failure;
        if (item.failure.empty()) {
            try {
                cell = Render(item, stlFolder);
            } catch (...) {
                cell.failure = MessageOf(std::current_exception());
            }
        }
        if (cell.failure.empty()) {
            std::printf("%-30s %7zu triangles  height %8.3f mm\n", cell.typeName.c_str(), cell.triangles, cell.height);
        } else {
            std::printf("%-30s FAILED: %s\n", cell.typeName.c_str(), cell.failure.c_str());
            ++failures;
        }
        cells.push_back(std::move(cell));
    }

    const fs::path sheet = folder / "gallery.svg";
    try {
        gallery::WriteSheet(sheet.string(), cells);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "tool_gallery: %s\n", e.what());
        return 1;
    }
    std::printf("%zu tools, %d failed; meshes in %s, sheet %s\n", cells.size(), failures, stlFolder.string().c_str(),
                sheet.string().c_str());
    if (failures > 0) {
        std::fprintf(stderr, "tool_gallery: %d of %zu tools failed\n", failures, cells.size());
        return 1;
    }
    return 0;
}
