// Samples of the drilling tools, and of the end mill and the other simple typed revolved classes.
#include <optional>

#include "cadcam/tools/revolved/tqbullmill.h"
#include "cadcam/tools/revolved/tqcntrbore.h"
#include "cadcam/tools/revolved/tqcsink.h"
#include "cadcam/tools/revolved/tqctrdrill.h"
#include "cadcam/tools/revolved/tqdrill.h"
#include "cadcam/tools/revolved/tqendmill.h"
#include "cadcam/tools/revolved/tqpotgrindertool.h"
#include "cadcam/tools/revolved/tqradmill.h"
#include "cadcam/tools/revolved/tqreamer.h"
#include "cadcam/tools/revolved/tqsphermill.h"
#include "cadcam/tools/revolved/tqspotdrill.h"
#include "cadcam/tools/revolved/tqtaplh.h"
#include "cadcam/tools/revolved/tqtaprh.h"
#include "cadcam/tools/revolved/tqthreadtaptool.h"
#include "toolsamples.h"

namespace tqtest {
namespace {

using cadcam::tqTypedRevolvedTool;
using Extender = tqTypedRevolvedTool::tqShoulderDefinitionExtender;
constexpr measures::tqUnitsFactory::Units kMetric = measures::tqUnitsFactory::Metric;

/// The common parameters of a typed revolved tool; no extender means the default one.
struct Common {
    cadcam::tqTool::ArborPointer arbor = MillingArbor();
    cadcam::tqTool::HolderPointer holder = MillingHolder();
    double d = 10, lf = 20, ls = 40;
    std::optional<Extender> extender;
};

/// The typical common set and, after it, one set per common parameter changed.
std::vector<Common> CommonSets() {
    std::vector<Common> sets(7);
    sets[1].d = 12;
    sets[2].lf = 25;
    sets[3].ls = 50;
    sets[4].holder = OtherHolder();
    sets[5].arbor = OtherArbor();
    sets[6].extender = Extender(kMetric, 16, 30);
    return sets;
}

template <class T, class... Own>
ToolPointer Build(const Common& c, Own... own) {
    if (c.extender) return ToolPointer(new T(kMetric, c.arbor, c.holder, c.d, c.lf, c.ls, own..., *c.extender));
    return ToolPointer(new T(kMetric, c.arbor, c.holder, c.d, c.lf, c.ls, own...));
}

/// A sample of T: make builds it from the common set and the class's own parameters O; the first own set is the
/// typical one and each further one changes one own parameter. own reads the class's own numbers.
template <class T, class O>
ToolSample Sample(ToolPointer (*make)(const Common&, const O&), const std::vector<O>& ownSets,
                  std::vector<double> (*own)(const T&)) {
    ToolSample sample;
    const std::vector<Common> common = CommonSets();
    sample.tool = make(common[0], ownSets[0]);
    for (std::size_t i = 1; i < common.size(); ++i) sample.variants.push_back(make(common[i], ownSets[0]));
    for (std::size_t i = 1; i < ownSets.size(); ++i) sample.variants.push_back(make(common[0], ownSets[i]));
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

struct NoOwn {};
template <class T>
ToolPointer BuildPlain(const Common& c, const NoOwn&) {
    return Build<T>(c);
}
template <class T>
std::vector<double> NoNumbers(const T&) {
    return {};
}
template <class T>
ToolSample PlainSample() {
    return Sample<T, NoOwn>(&BuildPlain<T>, {NoOwn()}, &NoNumbers<T>);
}

struct Corner {
    double rc;
};
template <class T>
ToolPointer BuildCorner(const Common& c, const Corner& o) {
    return Build<T>(c, o.rc);
}
template <class T>
std::vector<double> CornerNumbers(const T& t) {
    return {t.GetCornerRadius()};
}

struct Tip {
    double angle;
};
template <class T>
ToolPointer BuildTip(const Common& c, const Tip& o) {
    return Build<T>(c, o.angle);
}
template <class T>
std::vector<double> TipNumbers(const T& t) {
    return {t.GetTipAngle()};
}

struct Tap {
    double rc;
    tqTypedRevolvedTool::CornerRadiusType crt;
    double angle;
    int threads;
};
template <class T>
ToolPointer BuildTap(const Common& c, const Tap& o) {
    return Build<T>(c, o.rc, o.crt, o.angle, o.threads);
}
template <class T>
std::vector<double> TapNumbers(const T& t) {
    return {t.GetCornerRadius(), static_cast<double>(t.GetCornerRadiusType()), t.GetTipAngle(),
            static_cast<double>(t.GetThreadsNumber())};
}
const std::vector<Tap> kTapSets = {{1, tqTypedRevolvedTool::CRT_CORNER, 120, 8},
                                   {0.5, tqTypedRevolvedTool::CRT_CORNER, 120, 8},
                                   {1, tqTypedRevolvedTool::CRT_FULL, 120, 8},
                                   {1, tqTypedRevolvedTool::CRT_CORNER, 118, 8},
                                   {1, tqTypedRevolvedTool::CRT_CORNER, 120, 10}};

using cadcam::tqThreadTapTool;
struct Thread {
    tqThreadTapTool::ThreadType type;
    double pitch;
    int tpi;
    tqThreadTapTool::ThreadDirection direction;
};
ToolPointer BuildThread(const Common& c, const Thread& o) {
    return Build<tqThreadTapTool>(c, o.type, o.pitch, o.tpi, o.direction);
}
std::vector<double> ThreadNumbers(const tqThreadTapTool& t) {
    return {static_cast<double>(t.GetThreadType()), t.GetPitch(), static_cast<double>(t.GetTPI()),
            static_cast<double>(t.GetThreadDirection())};
}

using cadcam::tqCSink;
struct Sink {
    double rc;
    tqTypedRevolvedTool::CornerRadiusType crt;
    double angle, db;
};
ToolPointer BuildSink(const Common& c, const Sink& o) { return Build<tqCSink>(c, o.rc, o.crt, o.angle, o.db); }
std::vector<double> SinkNumbers(const tqCSink& t) {
    return {t.GetCornerRadius(), static_cast<double>(t.GetCornerRadiusType()), t.GetTipAngle(), t.GetBottomDiameter()};
}

using cadcam::tqCtrDrill;
struct Centre {
    double angle, shoulder, dc, hc;
};
ToolPointer BuildCentre(const Common& c, const Centre& o) {
    return Build<tqCtrDrill>(c, o.angle, o.shoulder, o.dc, o.hc);
}
std::vector<double> CentreNumbers(const tqCtrDrill& t) {
    return {t.GetTipAngle(), t.GetShoulderAngle(), t.GetCoreDiameter(), t.GetCoreHeight()};
}

using cadcam::tqReamer;
struct Chamfer {
    double factor;
};
ToolPointer BuildReamer(const Common& c, const Chamfer& o) { return Build<tqReamer>(c, o.factor); }
std::vector<double> ReamerNumbers(const tqReamer& t) { return {t.GetFactor()}; }

}  // namespace

void AddDrillingSamples(SampleTable& table) {
    using namespace cadcam;
    AddSample<tqEndMill>(table, PlainSample<tqEndMill>());
    AddSample<tqCntrBore>(table, PlainSample<tqCntrBore>());
    AddSample<tqPotGrinderTool>(table, PlainSample<tqPotGrinderTool>());
    AddSample<tqSpherMill>(table, PlainSample<tqSpherMill>());
    AddSample<tqBullMill>(
        table, Sample<tqBullMill, Corner>(&BuildCorner<tqBullMill>, {{2}, {1.5}}, &CornerNumbers<tqBullMill>));
    AddSample<tqRadMill>(table,
                         Sample<tqRadMill, Corner>(&BuildCorner<tqRadMill>, {{2}, {1.5}}, &CornerNumbers<tqRadMill>));
    AddSample<tqDrill>(table, Sample<tqDrill, Tip>(&BuildTip<tqDrill>, {{118}, {120}}, &TipNumbers<tqDrill>));
    AddSample<tqSpotDrill>(table,
                           Sample<tqSpotDrill, Tip>(&BuildTip<tqSpotDrill>, {{90}, {120}}, &TipNumbers<tqSpotDrill>));
    AddSample<tqTapLH>(table, Sample<tqTapLH, Tap>(&BuildTap<tqTapLH>, kTapSets, &TapNumbers<tqTapLH>));
    AddSample<tqTapRH>(table, Sample<tqTapRH, Tap>(&BuildTap<tqTapRH>, kTapSets, &TapNumbers<tqTapRH>));
    AddSample<tqThreadTapTool>(
        table, Sample<tqThreadTapTool, Thread>(&BuildThread,
                                               {{tqThreadTapTool::TT_PITCH, 1.5, 16, tqThreadTapTool::TD_RIGHT_HANDED},
                                                {tqThreadTapTool::TT_TPI, 1.5, 16, tqThreadTapTool::TD_RIGHT_HANDED},
                                                {tqThreadTapTool::TT_PITCH, 1.25, 16, tqThreadTapTool::TD_RIGHT_HANDED},
                                                {tqThreadTapTool::TT_PITCH, 1.5, 18, tqThreadTapTool::TD_RIGHT_HANDED},
                                                {tqThreadTapTool::TT_PITCH, 1.5, 16, tqThreadTapTool::TD_LEFT_HANDED}},
                                               &ThreadNumbers));
    AddSample<tqCSink>(table, Sample<tqCSink, Sink>(&BuildSink,
                                                    {{1, tqCSink::CRT_CORNER, 90, 2},
                                                     {0.5, tqCSink::CRT_CORNER, 90, 2},
                                                     {1, tqCSink::CRT_NONE, 90, 2},
                                                     {1, tqCSink::CRT_CORNER, 100, 2},
                                                     {1, tqCSink::CRT_CORNER, 90, 3}},
                                                    &SinkNumbers));
    AddSample<tqCtrDrill>(
        table,
        Sample<tqCtrDrill, Centre>(
            &BuildCentre, {{118, 60, 3, 4}, {120, 60, 3, 4}, {118, 90, 3, 4}, {118, 60, 2.5, 4}, {118, 60, 3, 5}},
            &CentreNumbers));
    AddSample<tqReamer>(table, Sample<tqReamer, Chamfer>(&BuildReamer, {{0.2}, {0.3}}, &ReamerNumbers));
}

}  // namespace tqtest
