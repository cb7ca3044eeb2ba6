// tqToolFinder: which concrete class a tool is.
#pragma once

#include <cstddef>

#include "cadcam/tools/tqtoollist.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "misc/tqtypedvisitor.h"

namespace cadcam {

/// Finds the concrete class of a tool: its place in tqToolList and its class name. Overrides every class and the
/// abstract overload (which finds nothing); leaves the throwing default.
class TQ_EXPORT tqToolFinder : public misc::detail_::TypedVisitor<tqToolFinder, tqToolVisitor, tqTool, tqToolList> {
public:
    /// Nothing found: the index is kNotFound.
    tqToolFinder();
    /// Lets tool accept the finder.
    explicit tqToolFinder(const tqTool& tool);
    ~tqToolFinder() override;

    static constexpr std::size_t kNotFound = static_cast<std::size_t>(-1);

    /// The position of the tool's class in tqToolList, or kNotFound.
    std::size_t GetIndex() const { return m_index; }
    /// The class name, such as "tqEndMill"; empty when nothing was found.
    const char* GetClassName() const;
    /// The class name at a position of tqToolList; empty past its end.
    static const char* ClassNameAt(std::size_t index);

    /// The slot of class T (defined in the source for every class of tqToolList).
    template <class T>
    void OnVisit(const T& tool);
    void OnVisitBase(const tqTool& tool);

private:
    std::size_t m_index;
};

}  // namespace cadcam
