// tqToolComparator: exact equality of two tools held through their base.
#pragma once

#include "cadcam/tools/tqtoollist.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "misc/tqtypedvisitor.h"

namespace cadcam {

/// Accepted by the left tool, compares it with the right one given at construction: equal when both are of
/// one class and equal by its operator==. Overrides every class of tqToolList and the abstract overload (which
/// fails with "Trying to compare an abstract type."); leaves the throwing default.
class TQ_EXPORT tqToolComparator
    : public misc::detail_::TypedVisitor<tqToolComparator, tqToolVisitor, tqTool, tqToolList> {
public:
    explicit tqToolComparator(const tqTool& right);
    ~tqToolComparator() override;

    /// True when left and right are of one class and equal.
    static bool Compare(const tqTool& left, const tqTool& right);
    /// The result of the last visit; false before any.
    bool GetResult() const { return m_result; }

    /// The slot of class T (defined in the source for every class of tqToolList).
    template <class T>
    void OnVisit(const T& left);
    [[noreturn]] void OnVisitBase(const tqTool& tool);

private:
    const tqTool& m_right;
    bool m_result;
};

}  // namespace cadcam
