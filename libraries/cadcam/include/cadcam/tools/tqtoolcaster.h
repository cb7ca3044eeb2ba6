// tqToolCaster: the checkers that tell whether a tool belongs to a family, and cast it when it does.
#pragma once

#include "misc/export.h"

namespace cadcam {

class tqTool;
class tqTypedRevolvedTool;
class tqTypedExtrudedTool;
class tqGenericRevolvedTool;
class tqGenericTool;

/// A tool is cast to a family through these visitors, never by a language-level cast.
class TQ_EXPORT tqToolCaster {
public:
    /// The tool as a typed revolved tool, or null.
    static const tqTypedRevolvedTool* ToTypedRevolvedTool(const tqTool& tool);
    /// The tool as a typed extruded tool (a turning insert), or null.
    static const tqTypedExtrudedTool* ToTypedExtrudedTool(const tqTool& tool);
    /// The tool as a generic revolved tool, or null.
    static const tqGenericRevolvedTool* ToGenericRevolvedTool(const tqTool& tool);
    /// The tool as a generic tool, or null.
    static const tqGenericTool* ToGenericTool(const tqTool& tool);

    static bool IsTypedRevolvedTool(const tqTool& tool) { return ToTypedRevolvedTool(tool) != nullptr; }
    static bool IsTypedExtrudedTool(const tqTool& tool) { return ToTypedExtrudedTool(tool) != nullptr; }
    static bool IsGenericRevolvedTool(const tqTool& tool) { return ToGenericRevolvedTool(tool) != nullptr; }
    static bool IsGenericTool(const tqTool& tool) { return ToGenericTool(tool) != nullptr; }
};

}  // namespace cadcam
