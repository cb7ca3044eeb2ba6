// tqToolToGenericToolConverter: the generic form of a tool, its parts in four placed groups.
#pragma once

#include "cadcam/tools/tqtoollist.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "misc/tqautopointer.h"
#include "misc/tqtypedvisitor.h"

namespace cadcam {

/// Builds the tqGenericTool of any tool: holder, arbor, non-cutting and cutting groups, each part shared with
/// the tool and placed by a move along Z. A tqGenericTool gives a copy of itself.
class TQ_EXPORT tqToolToGenericToolConverter
    : public misc::detail_::TypedVisitor<tqToolToGenericToolConverter, tqToolVisitor, tqTool, tqToolList> {
public:
    tqToolToGenericToolConverter();
    ~tqToolToGenericToolConverter() override;

    /// The generic form of tool, in its units.
    static misc::tqAutoPointer<tqGenericTool> Convert(const tqTool& tool);
    /// The generic form of the tool visited last; null before any visit.
    const misc::tqAutoPointer<tqGenericTool>& GetGenericTool() const { return m_generic; }

    /// The slot of class T (defined in the source for every class of tqToolList).
    template <class T>
    void OnVisit(const T& tool);
    /// A tool of an abstract family with no slot of its own fails with tqcadcamException 2020.
    void OnVisitBase(const tqTool& tool);

private:
    misc::tqAutoPointer<tqGenericTool> m_generic;
};

}  // namespace cadcam
