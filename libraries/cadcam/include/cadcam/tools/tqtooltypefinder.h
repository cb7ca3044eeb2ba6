// tqToolTypeFinder: whether a tool is typed or generic, and its family.
#pragma once

#include "cadcam/tools/tqtoollist.h"
#include "cadcam/tools/tqtooltypes.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "misc/tqtypedvisitor.h"

namespace cadcam {

/// Generic are tqGenericTool, tqGenericRevolvedTool, tqGenericExtrudedTool and tqGenericSawingTool; every other
/// class is typed. Overrides every class and the abstract overload (typed); leaves the throwing default.
class TQ_EXPORT tqToolTypeFinder
    : public misc::detail_::TypedVisitor<tqToolTypeFinder, tqToolVisitor, tqTool, tqToolList> {
public:
    /// Lets tool accept the finder.
    explicit tqToolTypeFinder(const tqTool& tool);
    ~tqToolTypeFinder() override;

    tqToolTypes::ToolRepresentation GetToolRepresentation() const { return m_representation; }
    tqToolTypes::ToolFamily GetToolFamily() const { return m_family; }

    /// The slot of class T (defined in the source for every class of tqToolList).
    template <class T>
    void OnVisit(const T& tool);
    void OnVisitBase(const tqTool& tool);

private:
    tqToolTypes::ToolRepresentation m_representation;
    tqToolTypes::ToolFamily m_family;
};

}  // namespace cadcam
