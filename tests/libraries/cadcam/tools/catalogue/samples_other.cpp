// Samples of the other tool families: saws, wire, speed shape, optic diamond, and the generic extruded and generic tools.
#include <functional>

#include "cadcam/geometry/tq2dline.h"
#include "cadcam/tools/parts/tqalltoolpartdefinitions.h"
#include "cadcam/tools/solids/tqextrudedsoliddefinition.h"
#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"
#include "cadcam/tools/other/tqchainsawtool.h"
#include "cadcam/tools/other/tqgenericextrudedtool.h"
#include "cadcam/tools/other/tqgenericsawingtool.h"
#include "cadcam/tools/other/tqgenerictool.h"
#include "cadcam/tools/other/tqopticdiamondtool.h"
#include "cadcam/tools/other/tqspeedshapetool.h"
#include "cadcam/tools/other/tqwiretool.h"
#include "toolsamples.h"

namespace tqtest {
namespace {

using namespace cadcam;
constexpr measures::tqUnitsFactory::Units kMetric = measures::tqUnitsFactory::Metric;
using Arbor = tqTool::ArborPointer;
using Holder = tqTool::HolderPointer;
using SolidPointer = misc::tqAutoPointer<tqSolidDefinition<double>>;

/// A sample whose tool is make(MillingArbor(), MillingHolder(), own[0]); the variants take OtherArbor(),
/// OtherHolder(), then each further own set. numbers reads the class's own numbers.
template <class T, class O>
ToolSample Sample(const std::function<ToolPointer(const Arbor&, const Holder&, const O&)>& make,
                  const std::vector<O>& own, const std::function<std::vector<double>(const T&)>& numbers) {
    ToolSample sample;
    sample.tool = make(MillingArbor(), MillingHolder(), own[0]);
    sample.variants.push_back(make(OtherArbor(), MillingHolder(), own[0]));
    sample.variants.push_back(make(MillingArbor(), OtherHolder(), own[0]));
    for (std::size_t i = 1; i < own.size(); ++i)
        sample.variants.push_back(make(MillingArbor(), MillingHolder(), own[i]));
    sample.parameters = [numbers](const tqTool& tool) { return numbers(static_cast<const T&>(tool)); };
    return sample;
}

/// Every end point of the lines of a contour.
void AppendLines(std::vector<double>& numbers, const tq2dContour<double>& contour) {
    for (const auto& item : contour) {
        const auto line = item.StaticCast<tq2dLine<double>>();
        numbers.insert(numbers.end(), {line->GetStart().x, line->GetStart().y, line->GetEnd().x, line->GetEnd().y});
    }
}

tq2dContour<double> Lines(const std::vector<tqPoint2d>& points) {
    tq2dContour<double> contour;
    for (std::size_t i = 1; i < points.size(); ++i) {
        contour.Append(misc::tqAutoPointer<tq2dGeometry<double>>(new tq2dLine<double>(points[i - 1], points[i])));
    }
    return contour;
}

struct Saw {
    double rc;
    tqChainSawTool::SawCornerRadiusType crt;
    tqChainSawTool::ChainSawType type;
    double width, thickness, length, straight, upper;
};

struct Optic {
    double radius, included;
    tqOpticDiamondTool::ClearanceType clearanceType;
    double clearance, rake;
    tqOpticDiamondTool::RadiusType radiusType;
    double length, width, thickness;
};

struct Wire {
    double diameter, length;
    bool infinite;
};

/// A plate extruded by thickness from a size by size square in the turning plane.
SolidPointer Plate(double size, double thickness) {
    return SolidPointer(new tqExtrudedSolidDefinition<double>(
        kMetric, {0, -thickness, 0}, 0, {0, -1, 0}, {Lines({{0, 0}, {size, 0}, {size, size}, {0, size}, {0, 0}})}));
}

using PartPointer = misc::tqAutoPointer<tqToolPartDefinition<double>>;
using Matrix = tqMatrix<double, 4, 4>;
template <class Role>
PartPointer Part(double radius, double height) {
    return PartPointer(new Role(kMetric, SolidPointer(new tqRevolvedSolidDefinition<double>(
                                             kMetric, Lines({{0, 0}, {radius, 0}, {radius, height}})))));
}
tqGenericTool::PositionedPart At(const PartPointer& part, const Matrix& matrix) {
    return {part, misc::tqAutoPointer<Matrix>(new Matrix(matrix))};
}

/// The four groups of a generic tool, holder first.
struct Groups {
    tqGenericTool::Group holder, arbor, nonCutting, cutting;
};
ToolPointer MakeGeneric(const Groups& g) {
    return ToolPointer(new tqGenericTool(kMetric, g.holder, g.arbor, g.nonCutting, g.cutting));
}
/// Per group: its size, then every matrix value and every end point of each part's profile.
std::vector<double> GenericNumbers(const tqTool& tool) {
    const auto& generic = static_cast<const tqGenericTool&>(tool);
    std::vector<double> numbers;
    for (const tqGenericTool::Group* group : {&generic.GetHolderGroup(), &generic.GetArborGroup(),
                                              &generic.GetNonCuttingGroup(), &generic.GetCuttingGroup()}) {
        numbers.push_back(static_cast<double>(group->size()));
        for (const auto& element : *group) {
            numbers.insert(numbers.end(), element.m_matrix->GetData(), element.m_matrix->GetData() + 16);
            AppendLines(
                numbers,
                static_cast<const tqRevolvedSolidDefinition<double>&>(*element.m_part->GetSolid()).GetProfile());
        }
    }
    return numbers;
}

ToolSample GenericSample() {
    const Matrix turned = Matrix::Rotation({1, 0, 0}, 30) * Matrix::Translation(1.5, -2.25, 3);
    const Groups typical{{At(Part<tqHolderDefinition<double>>(25, 70), Matrix::Translation(0, 0, 45))},
                         {},
                         {At(Part<tqNonCuttingPartDefinition<double>>(6, 30), Matrix::Translation(0, 0, 15))},
                         {At(Part<tqCuttingPartDefinition<double>>(5, 15), Matrix()),
                          At(Part<tqCuttingPartDefinition<double>>(3, 5), turned)}};
    ToolSample sample;
    sample.tool = MakeGeneric(typical);
    auto change = [&](const std::function<void(Groups&)>& edit) {
        Groups g = typical;
        edit(g);
        sample.variants.push_back(MakeGeneric(g));
    };
    change([](Groups& g) { g.holder.clear(); });
    change([](Groups& g) { g.arbor.push_back(At(Part<tqArborDefinition<double>>(17, 45), Matrix())); });
    change([](Groups& g) {
        g.nonCutting[0] = At(Part<tqNonCuttingPartDefinition<double>>(7, 30), *g.nonCutting[0].m_matrix);
    });
    change([](Groups& g) { g.nonCutting[0] = At(g.nonCutting[0].m_part, Matrix::Translation(0, 0, 16)); });
    change([](Groups& g) { g.cutting[1] = At(g.cutting[1].m_part, Matrix::Rotation({1, 0, 0}, 31)); });
    change([](Groups& g) { std::swap(g.cutting[0], g.cutting[1]); });
    change([](Groups& g) { g.nonCutting.swap(g.cutting); });
    sample.parameters = GenericNumbers;
    return sample;
}

}  // namespace

void AddOtherSamples(SampleTable& table) {
    using C = tqChainSawTool;
    AddSample<tqChainSawTool>(
        table, Sample<tqChainSawTool, Saw>(
                   [](const Arbor& a, const Holder& h, const Saw& s) {
                       return ToolPointer(new tqChainSawTool(kMetric, a, h, s.rc, s.crt, s.type, s.width, s.thickness,
                                                             s.length, s.straight, s.upper));
                   },
                   {{2, C::SCRT_CORNER, C::CST_SIMPLE, 10, 1.5, 100, 60, 6},
                    {3, C::SCRT_CORNER, C::CST_SIMPLE, 10, 1.5, 100, 60, 6},
                    {2, C::SCRT_FULL, C::CST_SIMPLE, 10, 1.5, 100, 60, 6},
                    {2, C::SCRT_CORNER, C::CST_STRAIGHT, 10, 1.5, 100, 60, 6},
                    {2, C::SCRT_CORNER, C::CST_SIMPLE, 12, 1.5, 100, 60, 6},
                    {2, C::SCRT_CORNER, C::CST_SIMPLE, 10, 2, 100, 60, 6},
                    {2, C::SCRT_CORNER, C::CST_SIMPLE, 10, 1.5, 110, 60, 6},
                    {2, C::SCRT_CORNER, C::CST_SIMPLE, 10, 1.5, 100, 50, 6},
                    {2, C::SCRT_CORNER, C::CST_SIMPLE, 10, 1.5, 100, 60, 7}},
                   [](const tqChainSawTool& t) {
                       return std::vector<double>{t.GetCornerRadius(),
                                                  static_cast<double>(t.GetCornerRadiusType()),
                                                  static_cast<double>(t.GetChainSawType()),
                                                  t.GetBladeWidth(),
                                                  t.GetBladeThickness(),
                                                  t.GetBladeLength(),
                                                  t.GetStraightBladeLength(),
                                                  t.GetBladeUpperWidth()};
                   }));
    AddSample<tqGenericSawingTool>(
        table, Sample<tqGenericSawingTool, double>(
                   [](const Arbor& a, const Holder& h, const double& thickness) {
                       return ToolPointer(new tqGenericSawingTool(kMetric, a, h, thickness));
                   },
                   {2.5, 3}, [](const tqGenericSawingTool& t) { return std::vector<double>{t.GetBladeThickness()}; }));
    AddSample<tqWireTool>(table,
                          Sample<tqWireTool, Wire>(
                              [](const Arbor& a, const Holder& h, const Wire& w) {
                                  return ToolPointer(new tqWireTool(kMetric, a, h, w.diameter, w.length, w.infinite));
                              },
                              {{0.25, 400, false}, {0.3, 400, false}, {0.25, 300, false}, {0.25, 400, true}},
                              [](const tqWireTool& t) {
                                  return std::vector<double>{t.GetWireDiameter(), t.GetWireLength(),
                                                             static_cast<double>(t.HasInfiniteLength())};
                              }));
    const std::vector<double> shape = {10, 30, 1, 8, 20, 5, 40, 3};
    std::vector<std::vector<double>> shapes = {shape};
    for (std::size_t i = 0; i < shape.size(); ++i) {
        shapes.push_back(shape);
        shapes.back()[i] += 1;
    }
    AddSample<tqSpeedShapeTool>(
        table,
        Sample<tqSpeedShapeTool, std::vector<double>>(
            [](const Arbor& a, const Holder& h, const std::vector<double>& s) {
                return ToolPointer(new tqSpeedShapeTool(kMetric, a, h, s[0], s[1], s[2], s[3], s[4], s[5], s[6], s[7]));
            },
            shapes,
            [](const tqSpeedShapeTool& t) {
                return std::vector<double>{t.GetWidth(),      t.GetLength(),    t.GetCornerRadius(), t.GetConicLength(),
                                           t.GetConicAngle(), t.GetRampAngle(), t.GetArcRadius(),    t.GetDepth()};
            }));
    using O = tqOpticDiamondTool;
    AddSample<tqOpticDiamondTool>(
        table, Sample<tqOpticDiamondTool, Optic>(
                   [](const Arbor& a, const Holder& h, const Optic& o) {
                       return ToolPointer(new tqOpticDiamondTool(kMetric, a, h, o.radius, o.included, o.clearanceType,
                                                                 o.clearance, o.rake, o.radiusType, o.length, o.width,
                                                                 o.thickness));
                   },
                   {{0.5, 60, O::CT_CONICAL, 7, 0, O::RT_FULL, 10, 4, 1},
                    {0.6, 60, O::CT_CONICAL, 7, 0, O::RT_FULL, 10, 4, 1},
                    {0.5, 50, O::CT_CONICAL, 7, 0, O::RT_FULL, 10, 4, 1},
                    {0.5, 60, O::CT_CYLINDRICAL, 7, 0, O::RT_FULL, 10, 4, 1},
                    {0.5, 60, O::CT_CONICAL, 8, 0, O::RT_FULL, 10, 4, 1},
                    {0.5, 60, O::CT_CONICAL, 7, -5, O::RT_FULL, 10, 4, 1},
                    {0.5, 60, O::CT_CONICAL, 7, 0, O::RT_LEFT, 10, 4, 1},
                    {0.5, 60, O::CT_CONICAL, 7, 0, O::RT_FULL, 12, 4, 1},
                    {0.5, 60, O::CT_CONICAL, 7, 0, O::RT_FULL, 10, 5, 1},
                    {0.5, 60, O::CT_CONICAL, 7, 0, O::RT_FULL, 10, 4, 1.5}},
                   [](const tqOpticDiamondTool& t) {
                       return std::vector<double>{
                           t.GetRadius(),         t.GetIncludedAngle(), static_cast<double>(t.GetClearanceType()),
                           t.GetClearanceAngle(), t.GetRakeAngle(),     static_cast<double>(t.GetRadiusType()),
                           t.GetLength(),         t.GetWidth(),         t.GetThickness()};
                   }));
    AddSample<tqGenericExtrudedTool>(
        table, Sample<tqGenericExtrudedTool, std::vector<double>>(
                   [](const Arbor& a, const Holder& h, const std::vector<double>& plate) {
                       return ToolPointer(new tqGenericExtrudedTool(kMetric, a, h, Plate(plate[0], plate[1])));
                   },
                   {{10, 2}, {12, 2}, {10, 3}},
                   [](const tqGenericExtrudedTool& t) {
                       const auto& solid = static_cast<const tqExtrudedSolidDefinition<double>&>(*t.GetSolid());
                       const auto& e = solid.GetExtrusionVector();
                       std::vector<double> numbers = {e.x, e.y, e.z, solid.GetPlaneZ()};
                       for (const auto& contour : solid.GetContours()) AppendLines(numbers, contour);
                       return numbers;
                   }));
    AddSample<tqGenericTool>(table, GenericSample());
}

}  // namespace tqtest
