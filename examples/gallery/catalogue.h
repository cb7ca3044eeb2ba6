// The gallery's catalogue: one typical metric tool of each document type, in its family's default mount.
#pragma once

#include <string>
#include <typeindex>
#include <vector>

#include "cadcam/tools/tqtool.h"
#include "misc/tqautopointer.h"

namespace gallery {

/// A tool of the gallery under the type name the document writes for its class.
struct GalleryTool {
    /// The document's type name, such as "TriangleTurningTool".
    std::string typeName;
    /// The class the entry builds, known even when building failed.
    std::type_index type;
    /// The tool in its default arbor and holder; null when building failed.
    misc::tqAutoPointer<cadcam::tqTool> tool;
    /// Why building failed; empty on success.
    std::string failure;
};

/// One tool of each of the 47 document types, in alphabetical order of type name. A tool whose construction
/// throws is kept with its failure, so that one broken class does not hide the others.
std::vector<GalleryTool> BuildCatalogue();

/// Empty when the catalogue holds every class of cadcam::tqToolList once, except tqPotGrinderTool (the one
/// class the document has no type name for); otherwise what is missing or doubled.
std::string CheckCoverage(const std::vector<GalleryTool>& catalogue);

}  // namespace gallery
