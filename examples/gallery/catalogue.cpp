// The gallery's catalogue: typical parameters of every document type, grouped by family.
#include "gallery/catalogue.h"

#include <cmath>
#include <cstdint>
#include <exception>
#include <functional>
#include <initializer_list>
#include <map>
#include <type_traits>
#include <typeinfo>
#include <utility>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dcontour.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/geometry/tqmatrix.h"
#include "cadcam/geometry/tqtmesh.h"
#include "cadcam/tools/geometry/tqsoliddefinitionboundingbox.h"
#include "cadcam/tools/parts/tqalltoolpartdefinitions.h"
#include "cadcam/tools/parts/tqdefaulttoolparts.h"
#include "cadcam/tools/solids/tqallsoliddefinitions.h"
#include "cadcam/tools/tqalltools.h"
#include "cadcam/tools/tqtoollist.h"
#include "misc/tqexception.h"

namespace gallery {
namespace {

using namespace cadcam;
using Arbor = tqTool::ArborPointer;
using Holder = tqTool::HolderPointer;
using ToolPointer = misc::tqAutoPointer<tqTool>;
using SolidPointer = misc::tqAutoPointer<tqSolidDefinition<double>>;
using PartPointer = misc::tqAutoPointer<tqToolPartDefinition<double>>;
using Item = misc::tqAutoPointer<tq2dGeometry<double>>;
using Extender = tqTypedRevolvedTool::tqShoulderDefinitionExtender;
using Matrix = tqMatrix<double, 4, 4>;
using Units = measures::tqUnitsFactory::Units;

constexpr Units kMetric = measures::tqUnitsFactory::Metric;
constexpr auto kCorner = tqTypedRevolvedTool::CRT_CORNER;
constexpr auto kNone = tqTypedRevolvedTool::CRT_NONE;

/// The mount a tool is first built with, before its family's default is asked for.
enum class Family { Milling, Turning, ContourTurning };

/// Builds the tool in the given arbor and holder.
using Factory = std::function<tqTool*(const Arbor&, const Holder&)>;

struct Entry {
    const char* typeName;
    std::type_index type;
    Family family;
    int insert;  // the insert number of a turning holder
    Factory make;
};

template <class T>
Entry Milling(const char* name, Factory make) {
    return {name, std::type_index(typeid(T)), Family::Milling, -1, std::move(make)};
}
template <class T>
Entry Turning(const char* name, int insert, Factory make) {
    return {name, std::type_index(typeid(T)), Family::Turning, insert, std::move(make)};
}

// ---- Profiles and solids of the generic tools ----

tq2dContour<double> Polyline(std::initializer_list<tqPoint2d> points) {
    tq2dContour<double> contour;
    const tqPoint2d* previous = nullptr;
    for (const tqPoint2d& p : points) {
        if (previous != nullptr) contour.Append(Item(new tq2dLine<double>(*previous, p)));
        previous = &p;
    }
    return contour;
}

void AppendLine(tq2dContour<double>& contour, tqPoint2d from, tqPoint2d to) {
    contour.Append(Item(new tq2dLine<double>(from, to)));
}

void AppendArc(tq2dContour<double>& contour, tqPoint2d from, tqPoint2d to, tqPoint2d centre, tqArcDirection direction) {
    contour.Append(Item(new tq2dArc<double>(from, to, centre, direction)));
}

SolidPointer Revolved(const tq2dContour<double>& profile) {
    return SolidPointer(new tqRevolvedSolidDefinition<double>(kMetric, profile));
}

/// A bull-nosed head of radius 5 and corner 1, 20 high.
PartPointer BullNoseHead() {
    tq2dContour<double> profile;
    AppendLine(profile, {0, 0}, {4, 0});
    AppendArc(profile, {4, 0}, {5, 1}, {4, 1}, tqArcDirection::Counterclockwise);
    AppendLine(profile, {5, 1}, {5, 20});
    return PartPointer(new tqCuttingPartDefinition<double>(kMetric, Revolved(profile)));
}

/// A shank that widens from radius 5 to 6 and runs up 40.
PartPointer WideningShank() {
    return PartPointer(
        new tqNonCuttingPartDefinition<double>(kMetric, Revolved(Polyline({{0, 0}, {5, 0}, {6, 5}, {6, 40}}))));
}

/// A form blade in the turning plane: a convex arc across the bottom, 8 wide, 25 high, 3 thick.
SolidPointer FormBlade() {
    // The arc's centre (0, 25/6) lies as far from the origin as from (+-4, 3): the blade touches the tip there.
    const double c = 25.0 / 6.0;
    tq2dContour<double> contour;
    AppendArc(contour, {-4, 3}, {4, 3}, {0, c}, tqArcDirection::Counterclockwise);
    AppendLine(contour, {4, 3}, {4, 25});
    AppendLine(contour, {4, 25}, {-4, 25});
    AppendLine(contour, {-4, 25}, {-4, 3});
    return SolidPointer(new tqExtrudedSolidDefinition<double>(kMetric, {0, -3, 0}, 0, {0, -1, 0}, {contour}));
}

/// A profiling insert for the contour turning tool: pointed at the origin, flanks up to 6, a round back.
tqContourTurningSolidDefinition<double> ProfilingInsert() {
    tq2dContour<double> contour;
    AppendLine(contour, {0, 0}, {3, 6});
    AppendLine(contour, {3, 6}, {3, 14});
    AppendArc(contour, {3, 14}, {-3, 14}, {0, 14}, tqArcDirection::Counterclockwise);
    AppendLine(contour, {-3, 14}, {-3, 6});
    AppendLine(contour, {-3, 6}, {0, 0});
    using Solid = tqContourTurningSolidDefinition<double>;
    return Solid(kMetric, 17, Solid::H_RIGHT, Solid::SK_RECTANGULAR, contour);
}

/// An engraving tip given as a closed mesh: a hexagonal pyramid standing on its apex, 6 high, 3 in radius.
SolidPointer EngravingTip() {
    using P = tqTPoint3d<double>;
    misc::tqAutoPointer<tqTMesh<double>> mesh(new tqTMesh<double>(kMetric));
    const std::uint32_t apex = mesh->AddVertex(P(0, 0, 0));
    const std::uint32_t centre = mesh->AddVertex(P(0, 0, 6));
    std::uint32_t ring[6];
    for (int i = 0; i < 6; ++i) {
        const double angle = i * 60.0 * 3.14159265358979323846 / 180.0;
        ring[i] = mesh->AddVertex(P(3 * std::cos(angle), 3 * std::sin(angle), 6));
    }
    for (int i = 0; i < 6; ++i) {
        const std::uint32_t a = ring[i];
        const std::uint32_t b = ring[(i + 1) % 6];
        const P& pa = (*mesh->GetVertices())[a];
        const P& pb = (*mesh->GetVertices())[b];
        // Outward: counterclockwise seen from outside, so the side runs apex, b, a and the top centre, a, b.
        P side = (pb - P(0, 0, 0)).Cross(pa - P(0, 0, 0));
        mesh->AddTriangle(apex, b, a, side * (1.0 / std::sqrt(side.Dot(side))));
        mesh->AddTriangle(centre, a, b, P(0, 0, 1));
    }
    return SolidPointer(new tqMeshSolidDefinition<double>(kMetric, mesh));
}

double HeightOf(const tqToolPartDefinition<double>& part) {
    return part.GetSolid().IsNull() ? 0.0 : tqSolidDefinitionBoundingBox::Of(*part.GetSolid()).GetHeight();
}

tqGenericTool::PositionedPart At(const PartPointer& part, double z) {
    return {part, misc::tqAutoPointer<Matrix>(new Matrix(Matrix::Translation(0, 0, z)))};
}

/// The generic tool: the engraving tip, a shank of radius 3 above it, then arbor and holder stacked on top.
tqTool* EngravingTool(const Arbor& arbor, const Holder& holder) {
    const PartPointer tip(new tqCuttingPartDefinition<double>(kMetric, EngravingTip()));
    const PartPointer shank(
        new tqNonCuttingPartDefinition<double>(kMetric, Revolved(Polyline({{0, 0}, {3, 0}, {3, 30}}))));
    double top = 6 + 30;
    tqGenericTool::Group arbors, holders;
    if (arbor.IsNotNull()) {
        arbors.push_back(At(PartPointer(arbor), top));
        top += HeightOf(*arbor);
    }
    if (holder.IsNotNull()) holders.push_back(At(PartPointer(holder), top));
    return new tqGenericTool(kMetric, holders, arbors, {At(shank, 6)}, {At(tip, 0)});
}

// ---- The catalogue ----

std::vector<Entry> Entries() {
    using A = Arbor;
    using H = Holder;
    using Adv = tqBarrelAdvancedMill;
    using Groove = tqGrooveTurningTool;
    using Saw = tqChainSawTool;
    using Optic = tqOpticDiamondTool;
    using Thread = tqThreadTapTool;
    return {
        // Drilling: D, Lf, Ls, then the class's own parameters.
        Milling<tqDrill>("Drill", [](const A& a, const H& h) { return new tqDrill(kMetric, a, h, 8.5, 45, 70, 118); }),
        Milling<tqSpotDrill>("SpotDrill",
                             [](const A& a, const H& h) { return new tqSpotDrill(kMetric, a, h, 10, 12, 45, 90); }),
        Milling<tqCtrDrill>(
            "CtrDrill",
            [](const A& a, const H& h) { return new tqCtrDrill(kMetric, a, h, 10, 15, 45, 118, 60, 3.15, 4); }),
        Milling<tqCSink>(
            "CSink",
            [](const A& a, const H& h) { return new tqCSink(kMetric, a, h, 16, 12, 45, 0.5, kCorner, 90, 3); }),
        Milling<tqReamer>("Reamer",
                          [](const A& a, const H& h) { return new tqReamer(kMetric, a, h, 10, 30, 60, 0.1); }),
        Milling<tqTapRH>(
            "TapRH",
            [](const A& a, const H& h) { return new tqTapRH(kMetric, a, h, 10, 22, 60, 0.5, kCorner, 90, 4); }),
        Milling<tqTapLH>(
            "TapLH",
            [](const A& a, const H& h) { return new tqTapLH(kMetric, a, h, 10, 22, 60, 0.5, kCorner, 90, 4); }),
        Milling<Thread>("ThreadTapTool",
                        [](const A& a, const H& h) {
                            return new Thread(kMetric, a, h, 10, 22, 60, Thread::TT_PITCH, 1.5, 17,
                                              Thread::TD_RIGHT_HANDED);
                        }),
        Milling<tqCntrBore>("ContourBore",
                            [](const A& a, const H& h) { return new tqCntrBore(kMetric, a, h, 11, 15, 45); }),

        // Milling.
        Milling<tqEndMill>("EndMill", [](const A& a, const H& h) { return new tqEndMill(kMetric, a, h, 10, 22, 45); }),
        Milling<tqBullMill>("BullMill",
                            [](const A& a, const H& h) { return new tqBullMill(kMetric, a, h, 12, 24, 50, 2); }),
        Milling<tqSpherMill>("SphereMill",
                             [](const A& a, const H& h) { return new tqSpherMill(kMetric, a, h, 10, 20, 45); }),
        Milling<tqRadMill>("RadMill",
                           [](const A& a, const H& h) { return new tqRadMill(kMetric, a, h, 12, 20, 45, 3); }),
        Milling<tqTaperMill>(
            "TaperMill",
            [](const A& a, const H& h) { return new tqTaperMill(kMetric, a, h, 4, 25, 50, 0.5, kCorner, 3); }),
        // A dovetail cutter has a neck narrower than its head: an explicit shank of diameter 10.
        Milling<tqDoveMill>("DoveMill",
                            [](const A& a, const H& h) {
                                return new tqDoveMill(kMetric, a, h, 20, 8, 40, 1, kCorner, 30,
                                                      Extender(kMetric, 10, 8));
                            }),
        Milling<tqBoreBar>(
            "BoreBar",
            [](const A& a, const H& h) { return new tqBoreBar(kMetric, a, h, 16, 30, 60, 0.4, kCorner, 3); }),
        Milling<tqFaceMill>(
            "FaceMill",
            [](const A& a, const H& h) { return new tqFaceMill(kMetric, a, h, 40, 10, 40, 1, kCorner, 50, 45); }),
        Milling<tqChamferMill>(
            "ChamferMill",
            [](const A& a, const H& h) { return new tqChamferMill(kMetric, a, h, 2, 10, 40, 0, kNone, 45, 12); }),
        // A slot (disc) mill runs on a neck: an explicit shank of diameter 16.
        Milling<tqSlotMill>("SlotMill",
                            [](const A& a, const H& h) {
                                return new tqSlotMill(kMetric, a, h, 40, 6, 30, 0.5, kCorner, Extender(kMetric, 16, 6));
                            }),
        Milling<tqLolMill>("LollipopMill",
                           [](const A& a, const H& h) { return new tqLolMill(kMetric, a, h, 10, 20, 45, 6); }),
        Milling<tqConvexTipMill>(
            "ConvexTipMill",
            [](const A& a, const H& h) { return new tqConvexTipMill(kMetric, a, h, 10, 15, 40, 1, 8, 1); }),
        Milling<tqBarrelLensMill>(
            "BarrelLensMill",
            [](const A& a, const H& h) { return new tqBarrelLensMill(kMetric, a, h, 10, 15, 40, 1, 8); }),

        // Barrel mills.
        Milling<tqBarrelMill>(
            "BarrelMill", [](const A& a, const H& h) { return new tqBarrelMill(kMetric, a, h, 10, 20, 40, 6, 1, 30); }),
        Milling<tqBarrelTangentMill>(
            "BarrelTangentMill",
            [](const A& a, const H& h) { return new tqBarrelTangentMill(kMetric, a, h, 10, 20, 40, 8, 12, 2); }),
        Milling<tqBarrelTangentMillConicalShaft>("BarrelTangentMillConicalShaft",
                                                 [](const A& a, const H& h) {
                                                     return new tqBarrelTangentMillConicalShaft(kMetric, a, h, 10, 25,
                                                                                                40, 10, 12, 2, 5);
                                                 }),
        Milling<tqBarrelDProfMill>(
            "BarrelDProfMill",
            [](const A& a, const H& h) { return new tqBarrelDProfMill(kMetric, a, h, 10, 15, 30, 20, 1, 8); }),
        Milling<tqBarrelBarrSecMill>(
            "BarrelBarrSecMill",
            [](const A& a, const H& h) { return new tqBarrelBarrSecMill(kMetric, a, h, 10, 20, 40, 6, 2, 8, 0.5, 5); }),
        Milling<tqBarrelTaperMill>("BarrelTaperMill",
                                   [](const A& a, const H& h) {
                                       return new tqBarrelTaperMill(kMetric, a, h, 10, 20, 40, 6, 5, 0.5, 6, 1, 4);
                                   }),
        // Diameter 12 at height 8 on a barrel of radius 30, flutes 16 long.
        Milling<Adv>("BarrelAdvancedMill",
                     [](const A& a, const H& h) {
                         return new Adv(
                             kMetric, a, h,
                             Adv::FluteHeightDefinition(kMetric, 16, Adv::FluteHeightDefinition::FH_DEF_BY_LENGTH),
                             Adv::AxialPositionDefinition(kMetric, 8, Adv::AxialPositionDefinition::AP_DEF_BY_DISTANCE),
                             Adv::RadialPositionDefinition(kMetric, 12,
                                                           Adv::RadialPositionDefinition::RP_DEF_BY_MAX_DIAMETER),
                             1, kCorner, 40, 30);
                     }),

        // Turning inserts: thickness, then the insert's own parameters.
        Turning<tqTriangleTurningTool>(
            "TriangleTurningTool", 0,
            [](const A& a, const H& h) { return new tqTriangleTurningTool(kMetric, a, h, 4.76, 0.8, 12.7); }),
        Turning<tqDiamondTurningTool>(
            "DiamondTurningTool", 1,
            [](const A& a, const H& h) { return new tqDiamondTurningTool(kMetric, a, h, 4.76, 0.8, 12.7, 55); }),
        Turning<tqParallelogramTurningTool>(
            "ParallelogramTurningTool", 2,
            [](const A& a, const H& h) { return new tqParallelogramTurningTool(kMetric, a, h, 4.76, 0.4, 55, 8, 16); }),
        Turning<tqSquareTurningTool>(
            "SquareTurningTool", 3,
            [](const A& a, const H& h) { return new tqSquareTurningTool(kMetric, a, h, 4.76, 0.8, 12.7); }),
        Turning<tqOctagonalTurningTool>(
            "OctagonalTurningTool", 4,
            [](const A& a, const H& h) { return new tqOctagonalTurningTool(kMetric, a, h, 4.76, 0.8, 12.7); }),
        Turning<tqPentagonalTurningTool>(
            "PentagonalTurningTool", 5,
            [](const A& a, const H& h) { return new tqPentagonalTurningTool(kMetric, a, h, 4.76, 0.8, 12.7); }),
        Turning<tqRoundTurningTool>(
            "RoundTurningTool", 6,
            [](const A& a, const H& h) { return new tqRoundTurningTool(kMetric, a, h, 4.76, 12); }),
        Turning<tqHexagonalTurningTool>(
            "HexagonalTurningTool", 7,
            [](const A& a, const H& h) { return new tqHexagonalTurningTool(kMetric, a, h, 4.76, 0.8, 12.7); }),
        // Groove type A: length 20, width 3, depth 5, body 6, shoulder angle 10.
        Turning<Groove>("GrooveTurningTool", 8,
                        [](const A& a, const H& h) {
                            return new Groove(kMetric, a, h, 4.76, Groove::TYPE_A, 0.2, 20, 3, 5, 6, 10);
                        }),
        {"ContourTurningTool", std::type_index(typeid(tqContourTurningTool)), Family::ContourTurning, -1,
         [](const A& a, const H& h) { return new tqContourTurningTool(kMetric, a, h, 4.76, ProfilingInsert()); }},

        // Saws, wire, speed shape and optic diamond.
        Milling<Saw>("ChainsawTool",
                     [](const A& a, const H& h) {
                         return new Saw(kMetric, a, h, 2, Saw::SCRT_CORNER, Saw::CST_SIMPLE, 10, 1.5, 100, 60, 6);
                     }),
        Milling<tqGenericSawingTool>(
            "GenericSawingTool", [](const A& a, const H& h) { return new tqGenericSawingTool(kMetric, a, h, 2.5); }),
        Milling<tqWireTool>("WireTool",
                            [](const A& a, const H& h) { return new tqWireTool(kMetric, a, h, 0.25, 100, false); }),
        // Width 10, length 30, corner 1, conic length 8, conic angle 20, ramp 5, arc radius 40, depth 3.
        Milling<tqSpeedShapeTool>(
            "SpeedShapeTool",
            [](const A& a, const H& h) { return new tqSpeedShapeTool(kMetric, a, h, 10, 30, 1, 8, 20, 5, 40, 3); }),
        Milling<Optic>("OpticDiamondTool",
                       [](const A& a, const H& h) {
                           return new Optic(kMetric, a, h, 0.5, 60, Optic::CT_CONICAL, 7, 0, Optic::RT_FULL, 10, 4, 1);
                       }),

        // Generic tools.
        Milling<tqGenericRevolvedTool>(
            "GenericRevolvedTool",
            [](const A& a, const H& h) {
                return new tqGenericRevolvedTool(kMetric, a, h, {BullNoseHead(), WideningShank()});
            }),
        Milling<tqGenericExtrudedTool>(
            "GenericExtrudedTool",
            [](const A& a, const H& h) { return new tqGenericExtrudedTool(kMetric, a, h, FormBlade()); }),
        Milling<tqGenericTool>("GenericTool", &EngravingTool),
    };
}

/// The tool in the default arbor and holder of its family: a first tool, in a milling mount or in a turning
/// holder where an insert needs one, tells tqDefaultToolParts which family it is.
ToolPointer Build(const Entry& entry) {
    Arbor arbor = tqDefaultToolParts::MillingArbor(kMetric);
    Holder holder = tqDefaultToolParts::MillingHolder(kMetric);
    if (entry.family == Family::Turning) {
        arbor = tqDefaultToolParts::TurningArbor(kMetric);
        holder = tqDefaultToolParts::TurningHolder(kMetric, entry.insert);
    } else if (entry.family == Family::ContourTurning) {
        arbor = tqDefaultToolParts::TurningArbor(kMetric);
        holder = tqDefaultToolParts::ContourTurningHolder(kMetric);
    }
    const ToolPointer first(entry.make(arbor, holder));
    return ToolPointer(entry.make(tqDefaultToolParts::ArborFor(*first), tqDefaultToolParts::HolderFor(*first)));
}

}  // namespace

std::vector<GalleryTool> BuildCatalogue() {
    std::vector<GalleryTool> catalogue;
    for (const Entry& entry : Entries()) {
        GalleryTool item{entry.typeName, entry.type, ToolPointer(), std::string()};
        try {
            item.tool = Build(entry);
        } catch (const misc::tqException& e) {
            item.failure = misc::to_utf8(e.GetMessage());
        } catch (const std::exception& e) {
            item.failure = e.what();
        }
        catalogue.push_back(std::move(item));
    }
    return catalogue;
}

std::string CheckCoverage(const std::vector<GalleryTool>& catalogue) {
    std::map<std::type_index, int> counts;
    for (const GalleryTool& item : catalogue) ++counts[item.type];
    std::string problems;
    std::size_t expected = 0;
    tqToolList::ForEach([&](auto* tag) {
        using T = std::remove_pointer_t<decltype(tag)>;
        const int wanted = std::is_same<T, tqPotGrinderTool>::value ? 0 : 1;
        expected += static_cast<std::size_t>(wanted);
        const auto found = counts.find(std::type_index(typeid(T)));
        const int count = found == counts.end() ? 0 : found->second;
        if (count != wanted) {
            problems += std::string(problems.empty() ? "" : "; ") + typeid(T).name() + " appears " +
                        std::to_string(count) + " times, expected " + std::to_string(wanted);
        }
    });
    if (problems.empty() && catalogue.size() != expected) {
        problems = std::to_string(catalogue.size()) + " entries, expected " + std::to_string(expected);
    }
    return problems;
}

}  // namespace gallery
