// tqToolCloner: a copy of a tool of its own class.
#pragma once

#include "cadcam/tools/tqtoollist.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "misc/tqautopointer.h"
#include "misc/tqtypedvisitor.h"

namespace cadcam {

/// Overrides the slot of every class of tqToolList and the abstract overload (which fails with "Trying to clone
/// an abstract type."); leaves the throwing default. The copy shares the holder and arbor definitions.
class TQ_EXPORT tqToolCloner
    : public misc::detail_::TypedVisitor<tqToolCloner, tqToolVisitor, tqTool, tqToolList> {
public:
    tqToolCloner();
    ~tqToolCloner() override;

    /// A copy of tool, of its own class.
    static misc::tqAutoPointer<tqTool> Clone(const tqTool& tool);
    /// The copy made by the last visit; null before any.
    const misc::tqAutoPointer<tqTool>& GetClone() const { return m_clone; }

    /// The slot of class T (defined in the source for every class of tqToolList).
    template <class T>
    void OnVisit(const T& tool);
    [[noreturn]] void OnVisitBase(const tqTool& tool);

private:
    misc::tqAutoPointer<tqTool> m_clone;
};

}  // namespace cadcam
