// The gallery sheet: every tool's outline in a grid of labelled cells, as one SVG file.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "gallery/outlines.h"

namespace gallery {

/// One cell of the sheet.
struct SheetCell {
    /// The document type name, the cell's label.
    std::string typeName;
    /// Every part of the tool, in drawing order.
    std::vector<Outline> outlines;
    std::size_t triangles = 0;
    /// The height of the whole tool with its mount, in millimetres.
    double height = 0;
    /// Why the tool could not be drawn; empty on success.
    std::string failure;
};

/// Writes the sheet: a title, a legend of the part colours, and one cell per tool in rows of six. Each cell
/// shows the whole assembly on the left and the tool without its mount enlarged on the right, both with the
/// tip down and the axis dashed, and a scale bar. Throws std::runtime_error when the file cannot be written.
void WriteSheet(const std::string& path, const std::vector<SheetCell>& cells);

}  // namespace gallery
