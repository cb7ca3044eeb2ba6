// tqToolTypes: the ways a tool can be given and the families it belongs to.
#pragma once

namespace cadcam {

/// Enumerations that tqToolTypeFinder answers with.
struct tqToolTypes {
    /// Whether a tool is given by named parameters or by a list of parts or solids.
    enum ToolRepresentation { TR_TYPED = 0, TR_GENERIC = 1 };
    /// The family of a tool, in the order of tqToolBranchVisitor's slots.
    enum ToolFamily {
        TF_SPEED_SHAPE = 0, TF_OPTIC_DIAMOND, TF_GENERIC, TF_SAWING, TF_WIRE, TF_EXTRUDED, TF_REVOLVED
    };
};

}  // namespace cadcam
