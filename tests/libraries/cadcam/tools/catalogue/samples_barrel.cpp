// Samples of the barrel tools: a typical tool of each class and its one-parameter variants.
#include <optional>

#include "cadcam/tools/barrel/tqbarreladvancedmill.h"
#include "cadcam/tools/barrel/tqbarrelbarrsecmill.h"
#include "cadcam/tools/barrel/tqbarreldprofmill.h"
#include "cadcam/tools/barrel/tqbarrelmill.h"
#include "cadcam/tools/barrel/tqbarreltangentmill.h"
#include "cadcam/tools/barrel/tqbarreltangentmillconicalshaft.h"
#include "cadcam/tools/barrel/tqbarreltapermill.h"
#include "toolsamples.h"

namespace tqtest {
namespace {

using cadcam::tqTypedRevolvedTool;
using Extender = tqTypedRevolvedTool::tqShoulderDefinitionExtender;
constexpr measures::tqUnitsFactory::Units kMetric = measures::tqUnitsFactory::Metric;

/// Holder, arbor and, when set, an explicit extender in place of the default one.
struct Mount {
    cadcam::tqTool::ArborPointer arbor = MillingArbor();
    cadcam::tqTool::HolderPointer holder = MillingHolder();
    std::optional<Extender> extender;
};

/// Builds T from the mount and the constructor's numbers, with the extender when the mount has one.
template <class T, class... Numbers>
ToolPointer Build(const Mount& m, Numbers... numbers) {
    if (m.extender) return ToolPointer(new T(kMetric, m.arbor, m.holder, numbers..., *m.extender));
    return ToolPointer(new T(kMetric, m.arbor, m.holder, numbers...));
}

/// The sample of one class: the typical parameters, one variant per change (each alters one parameter), then
/// variants with the other holder, the other arbor and an explicit extender. own reads the class's own numbers.
template <class T, class P>
ToolSample MakeSample(const P& typical, ToolPointer (*build)(const P&, const Mount&),
                      const std::vector<void (*)(P&)>& changes, const Extender& extender,
                      std::vector<double> (*own)(const T&)) {
    ToolSample sample;
    const Mount mount;
    sample.tool = build(typical, mount);
    for (const auto change : changes) {
        P p = typical;
        change(p);
        sample.variants.push_back(build(p, mount));
    }
    Mount other;
    other.holder = OtherHolder();
    sample.variants.push_back(build(typical, other));
    other = Mount();
    other.arbor = OtherArbor();
    sample.variants.push_back(build(typical, other));
    other = Mount();
    other.extender = extender;
    sample.variants.push_back(build(typical, other));
    sample.parameters = [own](const cadcam::tqTool& tool) {
        const T& t = static_cast<const T&>(tool);
        const Extender& e = t.GetShoulderDefinitionExtender();
        std::vector<double> numbers = {t.GetDiameter(), t.GetFluteLength(), t.GetShoulderLength(), e.GetDiameter(),
                                       e.GetLength()};
        const std::vector<double> mine = own(t);
        numbers.insert(numbers.end(), mine.begin(), mine.end());
        return numbers;
    };
    return sample;
}

struct BarrelMill {
    double d = 10, lf = 20, ls = 40, du = 6, rc = 1, rp = 30;
};
struct TangentMill {
    double d = 10, lf = 20, ls = 40, du = 8, rp = 12, rl = 2;
};
struct ConicalShaft {
    double d = 10, lf = 25, ls = 40, alpha = 10, rp = 12, rl = 2, lc = 5;
};
struct DProfMill {
    double d = 10, lf = 15, ls = 30, ru = 20, rbl = 1, rlo = 8;
};
struct BarrSecMill {
    double d = 10, lf = 20, ls = 40, dsh = 6, rub = 2, rp = 8, rlb = 0.5, hc = 5;
};
struct TaperMill {
    double d = 10, lf = 20, ls = 40, du = 6, alpha = 5, rl = 0.5, rp = 6, ru = 1, dfl = 4;
};
struct AdvancedMill {
    using Mill = cadcam::tqBarrelAdvancedMill;
    Mill::FluteHeightDefinition::DefinitionType fhBy = Mill::FluteHeightDefinition::FH_DEF_BY_LENGTH;
    Mill::AxialPositionDefinition::DefinitionType apBy = Mill::AxialPositionDefinition::AP_DEF_BY_DISTANCE;
    Mill::RadialPositionDefinition::DefinitionType rpBy = Mill::RadialPositionDefinition::RP_DEF_BY_DISTANCE;
    double fh = 6, ap = 5, rpv = 6, rc = 1;
    tqTypedRevolvedTool::CornerRadiusType crt = tqTypedRevolvedTool::CRT_CORNER;
    double ls = 30, rp = 10;
};

void AddSimpleBarrels(SampleTable& table) {
    using cadcam::tqBarrelMill;
    AddSample<tqBarrelMill>(
        table,
        MakeSample<tqBarrelMill, BarrelMill>(
            BarrelMill(),
            [](const BarrelMill& p, const Mount& m) {
                return Build<tqBarrelMill>(m, p.d, p.lf, p.ls, p.du, p.rc, p.rp);
            },
            {[](BarrelMill& p) { p.d = 11; }, [](BarrelMill& p) { p.lf = 22; }, [](BarrelMill& p) { p.ls = 45; },
             [](BarrelMill& p) { p.du = 7; }, [](BarrelMill& p) { p.rc = 0.5; }, [](BarrelMill& p) { p.rp = 35; }},
            Extender(kMetric, 12, 25),
            [](const tqBarrelMill& t) {
                return std::vector<double>{t.GetUpperDiameter(), t.GetCornerRadius(), t.GetProfileRadius()};
            }));

    using cadcam::tqBarrelTangentMill;
    AddSample<tqBarrelTangentMill>(
        table,
        MakeSample<tqBarrelTangentMill, TangentMill>(
            TangentMill(),
            [](const TangentMill& p, const Mount& m) {
                return Build<tqBarrelTangentMill>(m, p.d, p.lf, p.ls, p.du, p.rp, p.rl);
            },
            {[](TangentMill& p) { p.d = 9; }, [](TangentMill& p) { p.lf = 18; }, [](TangentMill& p) { p.ls = 45; },
             [](TangentMill& p) { p.du = 7; }, [](TangentMill& p) { p.rp = 14; }, [](TangentMill& p) { p.rl = 1.5; }},
            Extender(kMetric, 12, 25),
            [](const tqBarrelTangentMill& t) {
                return std::vector<double>{t.GetUpperDiameter(), t.GetProfileRadius(), t.GetLowerRadius()};
            }));

    using cadcam::tqBarrelTangentMillConicalShaft;
    AddSample<tqBarrelTangentMillConicalShaft>(
        table,
        MakeSample<tqBarrelTangentMillConicalShaft, ConicalShaft>(
            ConicalShaft(),
            [](const ConicalShaft& p, const Mount& m) {
                return Build<tqBarrelTangentMillConicalShaft>(m, p.d, p.lf, p.ls, p.alpha, p.rp, p.rl, p.lc);
            },
            {[](ConicalShaft& p) { p.d = 11; }, [](ConicalShaft& p) { p.lf = 22; }, [](ConicalShaft& p) { p.ls = 45; },
             [](ConicalShaft& p) { p.alpha = 15; }, [](ConicalShaft& p) { p.rp = 13; },
             [](ConicalShaft& p) { p.rl = 1.5; }, [](ConicalShaft& p) { p.lc = 6; }},
            Extender(kMetric, 12, 30),
            [](const tqBarrelTangentMillConicalShaft& t) {
                return std::vector<double>{t.GetTaperAngle(), t.GetProfileRadius(), t.GetLowerRadius(),
                                           t.GetConeLength()};
            }));

    using cadcam::tqBarrelDProfMill;
    AddSample<tqBarrelDProfMill>(
        table,
        MakeSample<tqBarrelDProfMill, DProfMill>(
            DProfMill(),
            [](const DProfMill& p, const Mount& m) {
                return Build<tqBarrelDProfMill>(m, p.d, p.lf, p.ls, p.ru, p.rbl, p.rlo);
            },
            {[](DProfMill& p) { p.d = 11; }, [](DProfMill& p) { p.lf = 14; }, [](DProfMill& p) { p.ls = 35; },
             [](DProfMill& p) { p.ru = 25; }, [](DProfMill& p) { p.rbl = 0.5; }, [](DProfMill& p) { p.rlo = 9; }},
            Extender(kMetric, 12, 20),
            [](const tqBarrelDProfMill& t) {
                return std::vector<double>{t.GetUpperProfileRadius(), t.GetBlendRadius(), t.GetLowerProfileRadius()};
            }));
}

void AddBlendedBarrels(SampleTable& table) {
    using cadcam::tqBarrelBarrSecMill;
    AddSample<tqBarrelBarrSecMill>(
        table,
        MakeSample<tqBarrelBarrSecMill, BarrSecMill>(
            BarrSecMill(),
            [](const BarrSecMill& p, const Mount& m) {
                return Build<tqBarrelBarrSecMill>(m, p.d, p.lf, p.ls, p.dsh, p.rub, p.rp, p.rlb, p.hc);
            },
            {[](BarrSecMill& p) { p.d = 11; }, [](BarrSecMill& p) { p.lf = 22; }, [](BarrSecMill& p) { p.ls = 45; },
             [](BarrSecMill& p) { p.dsh = 5; }, [](BarrSecMill& p) { p.rub = 1.5; }, [](BarrSecMill& p) { p.rp = 9; },
             [](BarrSecMill& p) { p.rlb = 0.7; }, [](BarrSecMill& p) { p.hc = 6; }},
            Extender(kMetric, 12, 25),
            [](const tqBarrelBarrSecMill& t) {
                return std::vector<double>{t.GetShaftDiameter(), t.GetUpperBlendRadius(), t.GetProfileRadius(),
                                           t.GetLowerBlendRadius(), t.GetCenterHeight()};
            }));

    using cadcam::tqBarrelTaperMill;
    AddSample<tqBarrelTaperMill>(
        table, MakeSample<tqBarrelTaperMill, TaperMill>(
                   TaperMill(),
                   [](const TaperMill& p, const Mount& m) {
                       return Build<tqBarrelTaperMill>(m, p.d, p.lf, p.ls, p.du, p.alpha, p.rl, p.rp, p.ru, p.dfl);
                   },
                   {[](TaperMill& p) { p.d = 11; }, [](TaperMill& p) { p.lf = 18; }, [](TaperMill& p) { p.ls = 45; },
                    [](TaperMill& p) { p.du = 5; }, [](TaperMill& p) { p.alpha = 8; }, [](TaperMill& p) { p.rl = 0.3; },
                    [](TaperMill& p) { p.rp = 7; }, [](TaperMill& p) { p.ru = 1.5; }, [](TaperMill& p) { p.dfl = 3; }},
                   Extender(kMetric, 12, 25),
                   [](const tqBarrelTaperMill& t) {
                       return std::vector<double>{t.GetUpperDiameter(), t.GetTaperAngle(),  t.GetLowerRadius(),
                                                  t.GetProfileRadius(), t.GetUpperRadius(), t.GetFlatnessDiameter()};
                   }));

    using Mill = cadcam::tqBarrelAdvancedMill;
    AddSample<Mill>(
        table, MakeSample<Mill, AdvancedMill>(
                   AdvancedMill(),
                   [](const AdvancedMill& p, const Mount& m) {
                       return Build<Mill>(m, Mill::FluteHeightDefinition(kMetric, p.fh, p.fhBy),
                                          Mill::AxialPositionDefinition(kMetric, p.ap, p.apBy),
                                          Mill::RadialPositionDefinition(kMetric, p.rpv, p.rpBy), p.rc, p.crt, p.ls,
                                          p.rp);
                   },
                   {[](AdvancedMill& p) { p.fh = 6.5; },
                    [](AdvancedMill& p) { p.fhBy = Mill::FluteHeightDefinition::FH_DEF_BY_UPPER_DIAMETER; },
                    [](AdvancedMill& p) { p.ap = 4; },
                    [](AdvancedMill& p) { p.apBy = Mill::AxialPositionDefinition::AP_DEF_BY_REFERENCE_DIAMETER; },
                    [](AdvancedMill& p) { p.rpv = 5.5; },
                    [](AdvancedMill& p) { p.rpBy = Mill::RadialPositionDefinition::RP_DEF_BY_MAX_DIAMETER; },
                    [](AdvancedMill& p) { p.rc = 0.5; }, [](AdvancedMill& p) { p.crt = tqTypedRevolvedTool::CRT_FULL; },
                    [](AdvancedMill& p) { p.ls = 35; }, [](AdvancedMill& p) { p.rp = 10.5; }},
                   Extender(kMetric, 10, 20),
                   [](const Mill& t) {
                       const auto& fh = t.GetFluteHeightDefinition();
                       const auto& ap = t.GetAxialPositionDefinition();
                       const auto& rp = t.GetRadialPositionDefinition();
                       return std::vector<double>{fh.GetValue(),       double(fh.GetDefinedBy()),
                                                  ap.GetValue(),       double(ap.GetDefinedBy()),
                                                  rp.GetValue(),       double(rp.GetDefinedBy()),
                                                  t.GetCornerRadius(), double(t.GetCornerRadiusType()),
                                                  t.GetProfileRadius()};
                   }));
}

}  // namespace

void AddBarrelSamples(SampleTable& table) {
    AddSimpleBarrels(table);
    AddBlendedBarrels(table);
}

}  // namespace tqtest
