// tqRevolvedTool: the family of tools that are a revolved profile.
#pragma once

#include "cadcam/tools/tqtool.h"

namespace cadcam {

template <class T>
class tq2dContour;

/// A tool whose body is a profile revolved about its axis.
class TQ_EXPORT tqRevolvedTool : public tqTool {
public:
    ~tqRevolvedTool() override;

    /// The tool's cutting diameter.
    virtual double GetDiameter() const = 0;
    /// The outline of the whole tool from the tip up (X the radius, Y the height), in tool coordinates.
    virtual const tq2dContour<double>& GetProfile() const = 0;

    void AcceptBranchVisitor(tqToolBranchVisitor& visitor) const override;
    /// Reaches the visitor's overload for tools of an abstract family; every concrete class overrides it.
    void AcceptVisitor(tqToolVisitor& visitor) const override;

protected:
    using tqTool::tqTool;
    tqRevolvedTool(const tqRevolvedTool&) = default;
    tqRevolvedTool& operator=(const tqRevolvedTool&) = default;
};

}  // namespace cadcam
