// tqThreadTapTool: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqthreadtaptool.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

namespace cadcam {

tqThreadTapTool::tqThreadTapTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                 const HolderPointer& holder, double diameter, double fluteLength,
                                 double shoulderLength, ThreadType threadType, double pitch, int tpi,
                                 ThreadDirection threadDirection)
    : tqThreadTapTool(units, arbor, holder, diameter, fluteLength, shoulderLength, threadType, pitch, tpi,
                      threadDirection, nullptr) {}

tqThreadTapTool::tqThreadTapTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                 const HolderPointer& holder, double diameter, double fluteLength,
                                 double shoulderLength, ThreadType threadType, double pitch, int tpi,
                                 ThreadDirection threadDirection, const tqShoulderDefinitionExtender& extender)
    : tqThreadTapTool(units, arbor, holder, diameter, fluteLength, shoulderLength, threadType, pitch, tpi,
                      threadDirection, &extender) {}

tqThreadTapTool::tqThreadTapTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                 const HolderPointer& holder, double diameter, double fluteLength,
                                 double shoulderLength, ThreadType threadType, double pitch, int tpi,
                                 ThreadDirection threadDirection, const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_threadType(threadType),
      m_pitch(pitch),
      m_tpi(tpi),
      m_threadDirection(threadDirection) {
    if (!(threadType == TT_PITCH || threadType == TT_TPI)) throw tqcadcamException(3474);
    if (threadType == TT_PITCH && !(pitch > 0)) throw tqcadcamException(3467);
    if (threadType == TT_TPI && !(tpi > 0)) throw tqcadcamException(3475);
    if (!(threadDirection == TD_LEFT_HANDED || threadDirection == TD_RIGHT_HANDED)) throw tqcadcamException(3472);
    // Threads are not modelled: the envelope is a cylinder up to the flute length.
    BuildProfiles(shape::CylinderHead(diameter / 2, fluteLength));
}

tqThreadTapTool::~tqThreadTapTool() = default;

void tqThreadTapTool::RebuildProfiles() {
    BuildProfiles(shape::CylinderHead(GetDiameter() / 2, GetFluteLength()));
}

void tqThreadTapTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqThreadTapTool::operator==(const tqThreadTapTool& other) const {
    return BaseEquals(other) && m_threadType == other.m_threadType && m_pitch == other.m_pitch &&
           m_tpi == other.m_tpi && m_threadDirection == other.m_threadDirection;
}

void tqThreadTapTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_pitch *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
