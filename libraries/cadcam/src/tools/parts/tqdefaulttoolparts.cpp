// tqDefaultToolParts: the default arbors and holders of the milling and turning families.
#include "cadcam/tools/parts/tqdefaulttoolparts.h"

#include <initializer_list>

#include "cadcam/geometry/tq2dline.h"
#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"
#include "cadcam/tools/solids/tqturningsoliddefinition.h"
#include "cadcam/tools/tqtool.h"
#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {
namespace {

using Units = measures::tqUnitsFactory::Units;
using Turning = tqTurningSolidDefinition<double>;
using SolidPointer = misc::tqAutoPointer<tqSolidDefinition<double>>;

bool IsMetric(Units units) { return units == measures::tqUnitsFactory::Metric; }

/// A revolved solid whose profile joins the points by lines.
SolidPointer Polyline(Units units, std::initializer_list<tqTPoint2d<double>> points) {
    tq2dContour<double> profile;
    const tqTPoint2d<double>* previous = nullptr;
    for (const tqTPoint2d<double>& point : points) {
        if (previous != nullptr) {
            profile.Append(tq2dContour<double>::Item(new tq2dLine<double>(*previous, point)));
        }
        previous = &point;
    }
    return SolidPointer(new tqRevolvedSolidDefinition<double>(units, profile));
}

/// The letters of a turning holder, A to G (H and I are 0 in every default).
struct HolderLetters {
    Turning::Type type;
    double height, a, b, c, d, e, f, g;
};

HolderLetters LettersFor(Units units, int insertNumber) {
    const bool metric = IsMetric(units);
    switch (insertNumber) {
        case Turning::IN_DIAMOND:
        case Turning::IN_PARALLELOGRAM:
            return metric ? HolderLetters{Turning::GENERIC_TYPE_B, 125, 25, 25, 32, 32, 20, 0, 0}
                          : HolderLetters{Turning::GENERIC_TYPE_B, 5, 1, 1, 1.25, 1.25, 0.75, 0, 0};
        case Turning::IN_ROUND:
            return metric ? HolderLetters{Turning::GENERIC_TYPE_E, 125, 25, 25, 32, 0, 20, 0, 0}
                          : HolderLetters{Turning::GENERIC_TYPE_E, 5, 1, 1, 1.25, 0, 0.75, 0, 0};
        case Turning::IN_GROOVE:
            return metric ? HolderLetters{Turning::GENERIC_TYPE_F, 125, 25, 25, 20, 0, 4, 20, 10}
                          : HolderLetters{Turning::GENERIC_TYPE_F, 5, 1, 1, 0.75, 0, 0.15, 0.75, 0.4};
        default:
            // Triangle, square, octagonal, pentagonal and hexagonal; an unknown number fails validation.
            return metric ? HolderLetters{Turning::GENERIC_TYPE_A, 125, 25, 25, 32, 32, 0, 0, 0}
                          : HolderLetters{Turning::GENERIC_TYPE_A, 5, 1, 1, 1.25, 1.25, 0, 0, 0};
    }
}

/// Picks the default parts by the tool's class; every class without a slot here is milled.
class DefaultPartsPicker : public tqToolVisitor {
public:
    explicit DefaultPartsPicker(const tqTool& tool) { tool.AcceptVisitor(*this); }

    bool IsTurning() const { return m_insert != kMilling; }
    bool IsContourTurning() const { return m_insert == kContourTurning; }
    int GetInsert() const { return m_insert; }

    void Visit(const tqTriangleTurningTool&) override { m_insert = Turning::IN_TRIANGLE; }
    void Visit(const tqDiamondTurningTool&) override { m_insert = Turning::IN_DIAMOND; }
    void Visit(const tqParallelogramTurningTool&) override { m_insert = Turning::IN_PARALLELOGRAM; }
    void Visit(const tqSquareTurningTool&) override { m_insert = Turning::IN_SQUARE; }
    void Visit(const tqOctagonalTurningTool&) override { m_insert = Turning::IN_OCTAGONAL; }
    void Visit(const tqPentagonalTurningTool&) override { m_insert = Turning::IN_PENTAGONAL; }
    void Visit(const tqRoundTurningTool&) override { m_insert = Turning::IN_ROUND; }
    void Visit(const tqHexagonalTurningTool&) override { m_insert = Turning::IN_HEXAGONAL; }
    void Visit(const tqGrooveTurningTool&) override { m_insert = Turning::IN_GROOVE; }
    void Visit(const tqContourTurningTool&) override { m_insert = kContourTurning; }
    void DefaultVisit(const tqTool&) override { m_insert = kMilling; }

private:
    static constexpr int kMilling = -1;
    static constexpr int kContourTurning = -2;
    int m_insert = kMilling;
};

}  // namespace

tqDefaultToolParts::ArborPointer tqDefaultToolParts::MillingArbor(Units units) {
    const SolidPointer solid = IsMetric(units) ? Polyline(units, {{0, 0}, {12, 0}, {17, 30}, {17, 45}})
                                               : Polyline(units, {{0, 0}, {0.5, 0}, {0.7, 1.2}, {0.7, 1.75}});
    return ArborPointer(new tqArborDefinition<double>(units, solid));
}

tqDefaultToolParts::HolderPointer tqDefaultToolParts::MillingHolder(Units units) {
    const SolidPointer solid =
        IsMetric(units) ? Polyline(units, {{0, 0}, {25, 0}, {25, 15}, {32, 15}, {32, 35}, {22, 70}})
                        : Polyline(units, {{0, 0}, {1, 0}, {1, 0.6}, {1.25, 0.6}, {1.25, 1.4}, {0.875, 2.75}});
    return HolderPointer(new tqHolderDefinition<double>(units, solid));
}

tqDefaultToolParts::ArborPointer tqDefaultToolParts::TurningArbor(Units units) {
    return ArborPointer(
        new tqArborDefinition<double>(units, SolidPointer(new tqRevolvedSolidDefinition<double>(units))));
}

tqDefaultToolParts::HolderPointer tqDefaultToolParts::TurningHolder(Units units, int insertNumber) {
    const HolderLetters l = LettersFor(units, insertNumber);
    const SolidPointer solid(new Turning(units, l.height, Turning::H_RIGHT, Turning::SK_RECTANGULAR,
                                         static_cast<Turning::Insert>(insertNumber), l.type, l.a, l.b, l.c, l.d, l.e,
                                         l.f, l.g, 0, 0));
    return HolderPointer(new tqHolderDefinition<double>(units, solid));
}

tqDefaultToolParts::HolderPointer tqDefaultToolParts::ContourTurningHolder(Units units) {
    return TurningHolder(units, Turning::IN_DIAMOND);
}

tqDefaultToolParts::ArborPointer tqDefaultToolParts::ArborFor(const tqTool& tool) {
    const DefaultPartsPicker picker(tool);
    return picker.IsTurning() ? TurningArbor(tool.GetUnits()) : MillingArbor(tool.GetUnits());
}

tqDefaultToolParts::HolderPointer tqDefaultToolParts::HolderFor(const tqTool& tool) {
    const DefaultPartsPicker picker(tool);
    if (picker.IsContourTurning()) return ContourTurningHolder(tool.GetUnits());
    if (picker.IsTurning()) return TurningHolder(tool.GetUnits(), picker.GetInsert());
    return MillingHolder(tool.GetUnits());
}

}  // namespace cadcam
