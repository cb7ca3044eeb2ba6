// tqDefaultToolParts: the default arbor and holder of each tool family, in either unit system.
#pragma once

#include "cadcam/tools/parts/tqarbordefinition.h"
#include "cadcam/tools/parts/tqholderdefinition.h"
#include "measures/tqunitsfactory.h"
#include "misc/export.h"
#include "misc/tqautopointer.h"

namespace cadcam {

class tqTool;

/// The arbors and holders a tool gets when it comes without its own: milling ones (revolved profiles of lines)
/// for every family but turning, and turning holders chosen by the kind of insert. Each call makes new objects.
class TQ_EXPORT tqDefaultToolParts {
public:
    using ArborPointer = misc::tqAutoPointer<tqArborDefinition<double>>;
    using HolderPointer = misc::tqAutoPointer<tqHolderDefinition<double>>;

    /// The milling arbor: a revolved profile 45 mm (1.75 in) high.
    static ArborPointer MillingArbor(measures::tqUnitsFactory::Units units);
    /// The milling holder: a revolved profile 70 mm (2.75 in) high.
    static HolderPointer MillingHolder(measures::tqUnitsFactory::Units units);
    /// The turning arbor: an empty revolved solid, which has no extent.
    static ArborPointer TurningArbor(measures::tqUnitsFactory::Units units);
    /// The turning holder (a tqTurningSolidDefinition, right hand, rectangular shank) for an insert number 0 to 8
    /// of tqTurningSolidDefinition::Insert; another number throws tqcadcamException 2264.
    static HolderPointer TurningHolder(measures::tqUnitsFactory::Units units, int insertNumber);
    /// The holder of contour turning tools: the turning holder of the diamond insert.
    static HolderPointer ContourTurningHolder(measures::tqUnitsFactory::Units units);

    /// The default arbor of the tool's family, in the tool's units: turning for inserts and contour turning
    /// tools, milling for every other class.
    static ArborPointer ArborFor(const tqTool& tool);
    /// The default holder of the tool's class, in the tool's units: the turning holder of its insert number for
    /// the nine inserts, the contour turning holder, or the milling holder for every other class.
    static HolderPointer HolderFor(const tqTool& tool);
};

}  // namespace cadcam
