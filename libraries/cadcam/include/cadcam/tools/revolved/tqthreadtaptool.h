// tqThreadTapTool: a thread tap given by pitch or threads per inch and its hand.
#pragma once

#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {

/// A thread tap given by pitch or threads per inch and its hand. The threads themselves are not modelled:
/// the cutting envelope is a cylinder of the tool diameter.
class TQ_EXPORT tqThreadTapTool : public tqTypedRevolvedTool {
public:
    /// Whether the thread is given by its pitch or by its threads per inch.
    enum ThreadType : int { TT_PITCH = 0, TT_TPI = 1 };
    /// The hand of the thread.
    enum ThreadDirection : int { TD_LEFT_HANDED = 0, TD_RIGHT_HANDED = 1 };

    /// With the default shoulder extender. Throws tqcadcamException for the first broken rule: the common ones, then
    /// 3474 for an unknown thread type, 3467 unless pitch > 0 (by pitch), 3475 unless tpi > 0 (by TPI), 3472 for an
    /// unknown direction.
    tqThreadTapTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                    double diameter, double fluteLength, double shoulderLength, ThreadType threadType, double pitch,
                    int tpi, ThreadDirection threadDirection);
    /// With a given shoulder extender, whose own rules ran when it was made; 2187 unless its base length lies
    /// between flute and shoulder length.
    tqThreadTapTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                    double diameter, double fluteLength, double shoulderLength, ThreadType threadType, double pitch,
                    int tpi, ThreadDirection threadDirection, const tqShoulderDefinitionExtender& extender);
    tqThreadTapTool(const tqThreadTapTool&) = default;
    tqThreadTapTool& operator=(const tqThreadTapTool&) = default;
    ~tqThreadTapTool() override;

    /// Whether Pitch or TPI gives the thread.
    ThreadType GetThreadType() const { return m_threadType; }
    /// The thread's pitch, a length; read when the type is TT_PITCH.
    double GetPitch() const { return m_pitch; }
    /// Threads per inch; read when the type is TT_TPI.
    int GetTPI() const { return m_tpi; }
    /// The hand of the thread.
    ThreadDirection GetThreadDirection() const { return m_threadDirection; }

    void AcceptVisitor(tqToolVisitor& visitor) const override;

    /// Exact: the same units, holder, arbor and parameters.
    bool operator==(const tqThreadTapTool& other) const;
    bool operator!=(const tqThreadTapTool& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    /// Builds the head again from the parameters, after a change of units.
    void RebuildProfiles() override;
    tqThreadTapTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                    double diameter, double fluteLength, double shoulderLength, ThreadType threadType, double pitch,
                    int tpi, ThreadDirection threadDirection, const tqShoulderDefinitionExtender* extender);

    ThreadType m_threadType;
    double m_pitch;
    int m_tpi;
    ThreadDirection m_threadDirection;
};

}  // namespace cadcam
