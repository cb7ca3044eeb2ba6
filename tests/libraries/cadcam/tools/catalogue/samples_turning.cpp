// Samples of the turning tools: each insert in the default holder of its insert number.
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/tools/solids/tqcontourturningsoliddefinition.h"
#include "cadcam/tools/turning/tqcontourturningtool.h"
#include "cadcam/tools/turning/tqdiamondturningtool.h"
#include "cadcam/tools/turning/tqgrooveturningtool.h"
#include "cadcam/tools/turning/tqhexagonalturningtool.h"
#include "cadcam/tools/turning/tqoctagonalturningtool.h"
#include "cadcam/tools/turning/tqparallelogramturningtool.h"
#include "cadcam/tools/turning/tqpentagonalturningtool.h"
#include "cadcam/tools/turning/tqroundturningtool.h"
#include "cadcam/tools/turning/tqsquareturningtool.h"
#include "cadcam/tools/turning/tqtriangleturningtool.h"
#include "toolsamples.h"

namespace tqtest {
namespace {

using namespace cadcam;
constexpr measures::tqUnitsFactory::Units kMetric = measures::tqUnitsFactory::Metric;

/// What every insert has: arbor, holder and thickness.
struct Mount {
    tqTool::ArborPointer arbor;
    tqTool::HolderPointer holder;
    double thickness;
};

/// The typical mount for an insert number and, after it, one mount per mount parameter changed.
std::vector<Mount> MountSets(int insert) {
    return {{EmptyArbor(), TurningHolder(insert), 4.76},
            {OtherArbor(), TurningHolder(insert), 4.76},
            {EmptyArbor(), TurningHolder((insert + 1) % 9), 4.76},
            {EmptyArbor(), TurningHolder(insert), 3.18}};
}

/// A sample of T: the first own set is the typical one and each further one changes one own parameter.
template <class T, class O>
ToolSample Sample(int insert, ToolPointer (*make)(const Mount&, const O&), const std::vector<O>& ownSets,
                  std::vector<double> (*own)(const T&)) {
    ToolSample sample;
    const std::vector<Mount> mounts = MountSets(insert);
    sample.tool = make(mounts[0], ownSets[0]);
    for (std::size_t i = 1; i < mounts.size(); ++i) sample.variants.push_back(make(mounts[i], ownSets[0]));
    for (std::size_t i = 1; i < ownSets.size(); ++i) sample.variants.push_back(make(mounts[0], ownSets[i]));
    sample.parameters = [own](const tqTool& tool) {
        const T& t = static_cast<const T&>(tool);
        std::vector<double> numbers = {t.GetInsertThickness()};
        const std::vector<double> mine = own(t);
        numbers.insert(numbers.end(), mine.begin(), mine.end());
        return numbers;
    };
    return sample;
}

struct Polygon {
    double rc, ic;
};
template <class T>
ToolPointer BuildPolygon(const Mount& m, const Polygon& o) {
    return ToolPointer(new T(kMetric, m.arbor, m.holder, m.thickness, o.rc, o.ic));
}
template <class T>
std::vector<double> PolygonNumbers(const T& t) {
    return {t.GetCornerRadius(), t.GetInscribedCircleDiameter()};
}
template <class T>
ToolSample PolygonSample(int insert) {
    return Sample<T, Polygon>(insert, &BuildPolygon<T>, {{0.8, 12.7}, {0.4, 12.7}, {0.8, 9.525}}, &PolygonNumbers<T>);
}

struct Diamond {
    double rc, ic, angle;
};
ToolPointer BuildDiamond(const Mount& m, const Diamond& o) {
    return ToolPointer(new tqDiamondTurningTool(kMetric, m.arbor, m.holder, m.thickness, o.rc, o.ic, o.angle));
}
std::vector<double> DiamondNumbers(const tqDiamondTurningTool& t) {
    return {t.GetCornerRadius(), t.GetInscribedCircleDiameter(), t.GetFormAngle()};
}

struct Parallelogram {
    double rc, angle, width, length;
};
ToolPointer BuildParallelogram(const Mount& m, const Parallelogram& o) {
    return ToolPointer(
        new tqParallelogramTurningTool(kMetric, m.arbor, m.holder, m.thickness, o.rc, o.angle, o.width, o.length));
}
std::vector<double> ParallelogramNumbers(const tqParallelogramTurningTool& t) {
    return {t.GetCornerRadius(), t.GetFormAngle(), t.GetWidth(), t.GetLength()};
}

struct Round {
    double diameter;
};
ToolPointer BuildRound(const Mount& m, const Round& o) {
    return ToolPointer(new tqRoundTurningTool(kMetric, m.arbor, m.holder, m.thickness, o.diameter));
}
std::vector<double> RoundNumbers(const tqRoundTurningTool& t) { return {t.GetDiameter()}; }

struct Groove {
    tqGrooveTurningTool::GroovingTurningToolType type;
    double rc, a, b, c, d, e;
};
ToolPointer BuildGroove(const Mount& m, const Groove& o) {
    return ToolPointer(
        new tqGrooveTurningTool(kMetric, m.arbor, m.holder, m.thickness, o.type, o.rc, o.a, o.b, o.c, o.d, o.e));
}
std::vector<double> GrooveNumbers(const tqGrooveTurningTool& t) {
    return {static_cast<double>(t.GetGroovingTurningToolType()),
            t.GetCornerRadius(),
            t.GetA(),
            t.GetB(),
            t.GetC(),
            t.GetD(),
            t.GetE()};
}

/// A contour turning solid: an isosceles triangle with its tip at the origin.
tqContourTurningSolidDefinition<double> Contour(double size, double height = 125) {
    tq2dContour<double> contour;
    const tqPoint2d points[] = {{0, 0}, {size, 2 * size}, {-size, 2 * size}, {0, 0}};
    for (int i = 1; i < 4; ++i) {
        contour.Append(misc::tqAutoPointer<tq2dGeometry<double>>(new tq2dLine<double>(points[i - 1], points[i])));
    }
    using Solid = tqContourTurningSolidDefinition<double>;
    return Solid(kMetric, height, Solid::H_RIGHT, Solid::SK_RECTANGULAR, contour);
}
struct ContourSet {
    double size, height;
};
ToolPointer BuildContour(const Mount& m, const ContourSet& o) {
    return ToolPointer(new tqContourTurningTool(kMetric, m.arbor, m.holder, m.thickness, Contour(o.size, o.height)));
}
/// The solid's height, then every line's end points.
std::vector<double> ContourNumbers(const tqContourTurningTool& t) {
    std::vector<double> numbers = {t.GetContourSolid().GetHeight()};
    for (const auto& item : t.GetContourSolid().GetContour()) {
        const auto line = item.StaticCast<tq2dLine<double>>();
        numbers.insert(numbers.end(), {line->GetStart().x, line->GetStart().y, line->GetEnd().x, line->GetEnd().y});
    }
    return numbers;
}

}  // namespace

void AddTurningSamples(SampleTable& table) {
    AddSample<tqTriangleTurningTool>(table, PolygonSample<tqTriangleTurningTool>(0));
    AddSample<tqSquareTurningTool>(table, PolygonSample<tqSquareTurningTool>(3));
    AddSample<tqOctagonalTurningTool>(table, PolygonSample<tqOctagonalTurningTool>(4));
    AddSample<tqPentagonalTurningTool>(table, PolygonSample<tqPentagonalTurningTool>(5));
    AddSample<tqHexagonalTurningTool>(table, PolygonSample<tqHexagonalTurningTool>(7));
    AddSample<tqDiamondTurningTool>(
        table,
        Sample<tqDiamondTurningTool, Diamond>(
            1, &BuildDiamond, {{0.8, 12.7, 55}, {0.4, 12.7, 55}, {0.8, 9.525, 55}, {0.8, 12.7, 35}}, &DiamondNumbers));
    AddSample<tqParallelogramTurningTool>(
        table, Sample<tqParallelogramTurningTool, Parallelogram>(
                   2, &BuildParallelogram,
                   {{0.4, 55, 8, 16}, {0.2, 55, 8, 16}, {0.4, 35, 8, 16}, {0.4, 55, 6, 16}, {0.4, 55, 8, 12}},
                   &ParallelogramNumbers));
    AddSample<tqRoundTurningTool>(table,
                                  Sample<tqRoundTurningTool, Round>(6, &BuildRound, {{12}, {16}}, &RoundNumbers));
    using G = tqGrooveTurningTool;
    AddSample<tqGrooveTurningTool>(table, Sample<tqGrooveTurningTool, Groove>(8, &BuildGroove,
                                                                              {{G::TYPE_A, 0.2, 20, 3, 5, 6, 10},
                                                                               {G::TYPE_B, 0.2, 20, 3, 5, 6, 10},
                                                                               {G::TYPE_A, 0.3, 20, 3, 5, 6, 10},
                                                                               {G::TYPE_A, 0.2, 22, 3, 5, 6, 10},
                                                                               {G::TYPE_A, 0.2, 20, 4, 5, 6, 10},
                                                                               {G::TYPE_A, 0.2, 20, 3, 6, 6, 10},
                                                                               {G::TYPE_A, 0.2, 20, 3, 5, 7, 10},
                                                                               {G::TYPE_A, 0.2, 20, 3, 5, 6, 15}},
                                                                              &GrooveNumbers));
    AddSample<tqContourTurningTool>(table, Sample<tqContourTurningTool, ContourSet>(
                                               1, &BuildContour, {{5, 125}, {6, 125}, {5, 100}}, &ContourNumbers));
}

}  // namespace tqtest
