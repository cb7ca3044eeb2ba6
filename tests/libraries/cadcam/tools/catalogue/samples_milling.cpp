// Samples of the milling tools.
#include <cstddef>
#include <functional>
#include <vector>

#include "cadcam/tools/revolved/tqbarrellensmill.h"
#include "cadcam/tools/revolved/tqborebar.h"
#include "cadcam/tools/revolved/tqchamfermill.h"
#include "cadcam/tools/revolved/tqconvextipmill.h"
#include "cadcam/tools/revolved/tqdovemill.h"
#include "cadcam/tools/revolved/tqfacemill.h"
#include "cadcam/tools/revolved/tqlolmill.h"
#include "cadcam/tools/revolved/tqslotmill.h"
#include "cadcam/tools/revolved/tqtapermill.h"
#include "toolsamples.h"

namespace tqtest {
namespace {

using cadcam::tqTypedRevolvedTool;
using Values = std::vector<double>;
using Arbor = misc::tqAutoPointer<cadcam::tqArborDefinition<double>>;
using Holder = misc::tqAutoPointer<cadcam::tqHolderDefinition<double>>;
using Extender = tqTypedRevolvedTool::tqShoulderDefinitionExtender;
/// Builds a tool from its values (diameter, flute length, shoulder length, then the class's own parameters in
/// constructor order), its mount and, when not null, an extender.
using Factory = std::function<ToolPointer(const Values&, const Arbor&, const Holder&, const Extender*)>;

constexpr measures::tqUnitsFactory::Units kMetric = measures::tqUnitsFactory::Metric;

tqTypedRevolvedTool::CornerRadiusType Crt(double value) {
    return static_cast<tqTypedRevolvedTool::CornerRadiusType>(static_cast<int>(value));
}

/// The typical tool, one variant per value (taking the value from `changed`), one per mount part and one with
/// `extender`; the numbers are the common ones followed by `own`.
template <class T>
void Add(SampleTable& table, const Factory& make, const Values& typical, const Values& changed,
         const Extender& extender, std::function<Values(const T&)> own) {
    ToolSample sample;
    sample.tool = make(typical, MillingArbor(), MillingHolder(), nullptr);
    for (std::size_t i = 0; i < typical.size(); ++i) {
        Values values = typical;
        values[i] = changed[i];
        sample.variants.push_back(make(values, MillingArbor(), MillingHolder(), nullptr));
    }
    sample.variants.push_back(make(typical, MillingArbor(), OtherHolder(), nullptr));
    sample.variants.push_back(make(typical, OtherArbor(), MillingHolder(), nullptr));
    sample.variants.push_back(make(typical, MillingArbor(), MillingHolder(), &extender));
    sample.parameters = [own](const cadcam::tqTool& tool) {
        const T& typed = static_cast<const T&>(tool);
        const Extender& e = typed.GetShoulderDefinitionExtender();
        Values numbers{typed.GetDiameter(), typed.GetFluteLength(), typed.GetShoulderLength(), e.GetDiameter(),
                       e.GetLength()};
        for (double value : own(typed)) numbers.push_back(value);
        return numbers;
    };
    AddSample<T>(table, sample);
}

/// The factory of a class whose own parameters are the corner radius, its type and an angle.
template <class T>
Factory CornerAngleFactory() {
    return [](const Values& v, const Arbor& a, const Holder& h, const Extender* e) {
        if (e != nullptr) return ToolPointer(new T(kMetric, a, h, v[0], v[1], v[2], v[3], Crt(v[4]), v[5], *e));
        return ToolPointer(new T(kMetric, a, h, v[0], v[1], v[2], v[3], Crt(v[4]), v[5]));
    };
}

template <class T>
Values CornerAngleNumbers(const T& tool) {
    return {tool.GetCornerRadius(), static_cast<double>(tool.GetCornerRadiusType()), tool.GetTaperAngle()};
}

}  // namespace

void AddMillingSamples(SampleTable& table) {
    using namespace cadcam;
    const double corner = tqTypedRevolvedTool::CRT_CORNER;
    const double full = tqTypedRevolvedTool::CRT_FULL;
    const double none = tqTypedRevolvedTool::CRT_NONE;

    // D, Lf, Ls, rc, crt, taper angle
    Add<tqTaperMill>(table, CornerAngleFactory<tqTaperMill>(), {10, 20, 40, 1, corner, 10}, {12, 25, 45, 1.5, full, 15},
                     Extender(kMetric, 20, 30), CornerAngleNumbers<tqTaperMill>);
    Add<tqDoveMill>(table, CornerAngleFactory<tqDoveMill>(), {20, 10, 40, 1, corner, 15}, {22, 12, 45, 2, none, 20},
                    Extender(kMetric, 25, 20), CornerAngleNumbers<tqDoveMill>);
    Add<tqBoreBar>(table, CornerAngleFactory<tqBoreBar>(), {16, 30, 60, 0.5, corner, 5}, {18, 35, 70, 0.8, full, 6},
                   Extender(kMetric, 20, 40), CornerAngleNumbers<tqBoreBar>);

    // D, Lf, Ls, rc, crt, outside diameter, taper angle
    Add<tqFaceMill>(
        table,
        [](const Values& v, const Arbor& a, const Holder& h, const Extender* e) {
            if (e != nullptr) {
                return ToolPointer(new tqFaceMill(kMetric, a, h, v[0], v[1], v[2], v[3], Crt(v[4]), v[5], v[6], *e));
            }
            return ToolPointer(new tqFaceMill(kMetric, a, h, v[0], v[1], v[2], v[3], Crt(v[4]), v[5], v[6]));
        },
        {40, 10, 40, 1, corner, 50, 45}, {42, 12, 45, 2, none, 52, 60}, Extender(kMetric, 60, 20),
        [](const tqFaceMill& m) {
            return Values{m.GetCornerRadius(), static_cast<double>(m.GetCornerRadiusType()), m.GetOutsideDiameter(),
                          m.GetTaperAngle()};
        });

    // D, Lf, Ls, rc, crt, taper angle, outside diameter
    Add<tqChamferMill>(
        table,
        [](const Values& v, const Arbor& a, const Holder& h, const Extender* e) {
            if (e != nullptr) {
                return ToolPointer(new tqChamferMill(kMetric, a, h, v[0], v[1], v[2], v[3], Crt(v[4]), v[5], v[6], *e));
            }
            return ToolPointer(new tqChamferMill(kMetric, a, h, v[0], v[1], v[2], v[3], Crt(v[4]), v[5], v[6]));
        },
        {2, 10, 40, 0.2, corner, 45, 12}, {3, 12, 45, 0.3, full, 30, 14}, Extender(kMetric, 16, 20),
        [](const tqChamferMill& m) {
            return Values{m.GetCornerRadius(), static_cast<double>(m.GetCornerRadiusType()), m.GetTaperAngle(),
                          m.GetOutsideDiameter()};
        });

    // D, Lf, Ls, rc, crt
    Add<tqSlotMill>(
        table,
        [](const Values& v, const Arbor& a, const Holder& h, const Extender* e) {
            if (e != nullptr) return ToolPointer(new tqSlotMill(kMetric, a, h, v[0], v[1], v[2], v[3], Crt(v[4]), *e));
            return ToolPointer(new tqSlotMill(kMetric, a, h, v[0], v[1], v[2], v[3], Crt(v[4])));
        },
        {40, 6, 30, 1, corner}, {50, 8, 35, 2, full}, Extender(kMetric, 45, 20),
        [](const tqSlotMill& m) {
            return Values{m.GetCornerRadius(), static_cast<double>(m.GetCornerRadiusType())};
        });

    // D, Lf, Ls, outside diameter
    Add<tqLolMill>(
        table,
        [](const Values& v, const Arbor& a, const Holder& h, const Extender* e) {
            if (e != nullptr) return ToolPointer(new tqLolMill(kMetric, a, h, v[0], v[1], v[2], v[3], *e));
            return ToolPointer(new tqLolMill(kMetric, a, h, v[0], v[1], v[2], v[3]));
        },
        {10, 20, 40, 6}, {12, 25, 45, 5}, Extender(kMetric, 12, 30),
        [](const tqLolMill& m) { return Values{m.GetOutsideDiameter()}; });

    // D, Lf, Ls, rc, convex tip radius, flatness radius
    Add<tqConvexTipMill>(
        table,
        [](const Values& v, const Arbor& a, const Holder& h, const Extender* e) {
            if (e != nullptr) {
                return ToolPointer(new tqConvexTipMill(kMetric, a, h, v[0], v[1], v[2], v[3], v[4], v[5], *e));
            }
            return ToolPointer(new tqConvexTipMill(kMetric, a, h, v[0], v[1], v[2], v[3], v[4], v[5]));
        },
        {10, 15, 40, 1, 8, 1}, {12, 18, 45, 1.5, 9, 2}, Extender(kMetric, 14, 30),
        [](const tqConvexTipMill& m) {
            return Values{m.GetCornerRadius(), m.GetConvexTipRadius(), m.GetFlatnessRadius()};
        });

    // D, Lf, Ls, rc, convex tip radius
    Add<tqBarrelLensMill>(
        table,
        [](const Values& v, const Arbor& a, const Holder& h, const Extender* e) {
            if (e != nullptr) return ToolPointer(new tqBarrelLensMill(kMetric, a, h, v[0], v[1], v[2], v[3], v[4], *e));
            return ToolPointer(new tqBarrelLensMill(kMetric, a, h, v[0], v[1], v[2], v[3], v[4]));
        },
        {10, 15, 40, 1, 8}, {12, 18, 45, 2, 10}, Extender(kMetric, 14, 30),
        [](const tqBarrelLensMill& m) {
            return Values{m.GetCornerRadius(), m.GetConvexTipRadius()};
        });
}

}  // namespace tqtest
