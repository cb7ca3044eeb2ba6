// The gallery sheet: layout, colours and the SVG text of every cell.
#include "gallery/svgsheet.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace gallery {
namespace {

constexpr int kColumns = 6;
constexpr double kMargin = 20;
constexpr double kHeader = 100;
constexpr double kGap = 10;
constexpr double kCellWidth = 250;
constexpr double kCellHeight = 340;
/// Free space kept between a drawing and its panel's edges, in pixels.
constexpr double kPad = 6;

struct Box {
    double left, top, right, bottom;
    double Width() const { return right - left; }
    double Height() const { return bottom - top; }
};

/// The CSS class of a role: its fill and outline colour.
const char* ClassOf(Role role) {
    switch (role) {
        case Role::Cutting:
            return "cutting";
        case Role::NonCutting:
            return "noncutting";
        case Role::Arbor:
            return "arbor";
        case Role::Holder:
            return "holder";
    }
    return "holder";
}

std::string Number(double value, int decimals = 2) {
    char text[32];
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return text;
}

std::string Escape(const std::string& text) {
    std::string escaped;
    for (char c : text) {
        switch (c) {
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            case '&':
                escaped += "&amp;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            default:
                // Control characters are not allowed in XML text.
                escaped += (static_cast<unsigned char>(c) < 0x20 && c != '\n' && c != '\t') ? ' ' : c;
        }
    }
    return escaped;
}

/// A thousands-separated count, for the cell's second line.
std::string Count(std::size_t value) {
    std::string digits = std::to_string(value);
    for (int i = static_cast<int>(digits.size()) - 3; i > 0; i -= 3) digits.insert(static_cast<std::size_t>(i), ",");
    return digits;
}

/// The longest of 1, 2, 5 times a power of ten that the scale draws in at most 60 pixels.
double ScaleBarLength(double pixelsPerMillimetre) {
    double best = 0;
    for (int exponent = -3; exponent <= 4; ++exponent) {
        for (double mantissa : {1.0, 2.0, 5.0}) {
            const double length = mantissa * std::pow(10.0, exponent);
            if (length * pixelsPerMillimetre <= 60) best = std::max(best, length);
        }
    }
    return best;
}

/// Maps tool coordinates into a panel: scaled to fit, centred across, the tip on the panel's floor.
class PanelMapping {
public:
    PanelMapping(const Box& panel, PlanePoint lower, PlanePoint upper)
        : m_panel(panel), m_lower(lower), m_upper(upper) {
        const double width = upper.x - lower.x;
        const double height = upper.z - lower.z;
        const double byWidth = width > 0 ? (panel.Width() - 2 * kPad) / width : INFINITY;
        const double byHeight = height > 0 ? (panel.Height() - 2 * kPad) / height : INFINITY;
        m_scale = std::min(byWidth, byHeight);
        if (!std::isfinite(m_scale)) m_scale = 1;
    }
    double Scale() const { return m_scale; }
    double X(double x) const {
        return (m_panel.left + m_panel.right) / 2 + (x - (m_lower.x + m_upper.x) / 2) * m_scale;
    }
    double Y(double z) const { return m_panel.bottom - kPad - (z - m_lower.z) * m_scale; }

private:
    Box m_panel;
    PlanePoint m_lower;
    PlanePoint m_upper;
    double m_scale;
};

void AppendPath(std::ostream& out, const std::vector<Polyline>& lines, const PanelMapping& map, bool closed) {
    for (const Polyline& line : lines) {
        for (std::size_t i = 0; i < line.size(); ++i) {
            out << (i == 0 ? "M" : "L") << Number(map.X(line[i].x)) << ' ' << Number(map.Y(line[i].z));
        }
        if (closed) out << 'Z';
    }
}

/// Draws the outlines that pass the filter into a panel; returns the scale used, or 0 when nothing was drawn.
template <class Filter>
double DrawPanel(std::ostream& out, const Box& panel, const std::vector<Outline>& outlines, Filter selected,
                 const char* empty) {
    bool any = false;
    PlanePoint lower{0, 0}, upper{0, 0};
    for (const Outline& outline : outlines) {
        PlanePoint lo, hi;
        if (!selected(outline.role) || !Extent(outline, lo, hi)) continue;
        lower = any ? PlanePoint{std::min(lower.x, lo.x), std::min(lower.z, lo.z)} : lo;
        upper = any ? PlanePoint{std::max(upper.x, hi.x), std::max(upper.z, hi.z)} : hi;
        any = true;
    }
    if (!any) {
        out << "<text class=\"note\" x=\"" << Number((panel.left + panel.right) / 2) << "\" y=\""
            << Number((panel.top + panel.bottom) / 2) << "\" text-anchor=\"middle\">" << empty << "</text>\n";
        return 0;
    }
    const PanelMapping map(panel, lower, upper);
    for (const Outline& outline : outlines) {
        if (!selected(outline.role)) continue;
        if (!outline.rings.empty()) {
            out << "<path class=\"" << ClassOf(outline.role) << "\" d=\"";
            AppendPath(out, outline.rings, map, true);
            out << "\"/>\n";
        }
        if (!outline.strokes.empty()) {
            out << "<path class=\"" << ClassOf(outline.role) << " edges\" d=\"";
            AppendPath(out, outline.strokes, map, false);
            out << "\"/>\n";
        }
    }
    // The tool axis, a little beyond both ends, where it falls inside the drawing.
    if (lower.x <= 0 && upper.x >= 0) {
        out << "<line class=\"axis\" x1=\"" << Number(map.X(0)) << "\" y1=\"" << Number(map.Y(lower.z) + 5)
            << "\" x2=\"" << Number(map.X(0)) << "\" y2=\"" << Number(map.Y(upper.z) - 5) << "\"/>\n";
    }
    // A scale bar under the panel.
    const double length = ScaleBarLength(map.Scale());
    if (length > 0) {
        const double y = panel.bottom + 12;
        const double x0 = panel.left + 4;
        const double x1 = x0 + length * map.Scale();
        out << "<path class=\"scale\" d=\"M" << Number(x0) << ' ' << Number(y - 3) << "V" << Number(y) << "H"
            << Number(x1) << "V" << Number(y - 3) << "\"/>\n";
        std::ostringstream label;
        label << length << " mm";
        out << "<text class=\"small\" x=\"" << Number(x1 + 4) << "\" y=\"" << Number(y + 1) << "\">" << label.str()
            << "</text>\n";
    }
    return map.Scale();
}

void DrawCell(std::ostream& out, const SheetCell& cell, double x, double y) {
    out << "<g class=\"tool\" id=\"" << Escape(cell.typeName) << "\">\n";
    out << "<rect class=\"cell\" x=\"" << Number(x) << "\" y=\"" << Number(y) << "\" width=\"" << Number(kCellWidth)
        << "\" height=\"" << Number(kCellHeight) << "\" rx=\"4\"/>\n";
    out << "<text class=\"label\" x=\"" << Number(x + 10) << "\" y=\"" << Number(y + 19) << "\">"
        << Escape(cell.typeName) << "</text>\n";
    if (!cell.failure.empty()) {
        // The message, wrapped at about 38 characters.
        double line = y + 44;
        std::istringstream words(cell.failure);
        std::string word, text;
        auto flush = [&] {
            out << "<text class=\"failure\" x=\"" << Number(x + 10) << "\" y=\"" << Number(line) << "\">"
                << Escape(text) << "</text>\n";
            line += 15;
            text.clear();
        };
        while (words >> word) {
            if (!text.empty() && text.size() + word.size() > 38) flush();
            text += (text.empty() ? "" : " ") + word;
        }
        if (!text.empty()) flush();
        out << "</g>\n";
        return;
    }
    out << "<text class=\"info\" x=\"" << Number(x + 10) << "\" y=\"" << Number(y + 35) << "\">"
        << Number(cell.height, 1) << " mm high, " << Count(cell.triangles) << " triangles</text>\n";
    const Box assembly{x + 8, y + 60, x + 124, y + kCellHeight - 34};
    const Box tool{x + 128, y + 60, x + kCellWidth - 8, y + kCellHeight - 34};
    const double whole = DrawPanel(
        out, assembly, cell.outlines, [](Role) { return true; }, "nothing to draw");
    const double near = DrawPanel(
        out, tool, cell.outlines, [](Role r) { return r == Role::Cutting || r == Role::NonCutting; }, "no tool part");
    out << "<text class=\"small\" x=\"" << Number(assembly.left + 4) << "\" y=\"" << Number(y + 53)
        << "\">assembly</text>\n";
    char caption[48];
    if (whole > 0 && near > 0) {
        std::snprintf(caption, sizeof caption, "tool, %.1f\u00d7 larger", near / whole);
    } else {
        std::snprintf(caption, sizeof caption, "tool");
    }
    out << "<text class=\"small\" x=\"" << Number(tool.left + 4) << "\" y=\"" << Number(y + 53) << "\">" << caption
        << "</text>\n";
    out << "</g>\n";
}

void DrawLegend(std::ostream& out, double x, double y) {
    const std::pair<Role, const char*> entries[] = {{Role::Cutting, "cutting part"},
                                                    {Role::NonCutting, "non-cutting part"},
                                                    {Role::Arbor, "arbor"},
                                                    {Role::Holder, "holder"}};
    for (const auto& [role, name] : entries) {
        out << "<rect class=\"" << ClassOf(role) << "\" x=\"" << Number(x) << "\" y=\"" << Number(y - 10)
            << "\" width=\"18\" height=\"12\"/>\n";
        out << "<text class=\"legend\" x=\"" << Number(x + 24) << "\" y=\"" << Number(y) << "\">" << name
            << "</text>\n";
        x += 150;
    }
    out << "<line class=\"axis\" x1=\"" << Number(x) << "\" y1=\"" << Number(y - 4) << "\" x2=\"" << Number(x + 18)
        << "\" y2=\"" << Number(y - 4) << "\"/>\n";
    out << "<text class=\"legend\" x=\"" << Number(x + 24) << "\" y=\"" << Number(y) << "\">tool axis</text>\n";
    out << "<path class=\"cutting edges\" d=\"M" << Number(x + 150) << ' ' << Number(y - 10) << "L" << Number(x + 168)
        << ' ' << Number(y + 2) << "\"/>\n";
    out << "<text class=\"legend\" x=\"" << Number(x + 174) << "\" y=\"" << Number(y)
        << "\">mesh silhouette (parts given as meshes or placed turned)</text>\n";
}

}  // namespace

void WriteSheet(const std::string& path, const std::vector<SheetCell>& cells) {
    const std::size_t rows = (cells.size() + kColumns - 1) / kColumns;
    const double width = 2 * kMargin + kColumns * kCellWidth + (kColumns - 1) * kGap;
    const double height = kHeader + rows * kCellHeight + (rows > 0 ? rows - 1 : 0) * kGap + kMargin;

    std::ostringstream out;
    out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << Number(width) << "\" height=\"" << Number(height)
        << "\" viewBox=\"0 0 " << Number(width) << ' ' << Number(height) << "\">\n";
    out << "<style>\n"
           "text { font-family: 'DejaVu Sans', Arial, Helvetica, sans-serif; fill: #222; }\n"
           ".title { font-size: 20px; font-weight: bold; }\n"
           ".subtitle, .legend, .label { font-size: 12px; }\n"
           ".label { font-weight: bold; }\n"
           ".info { font-size: 11px; fill: #555; }\n"
           ".small { font-size: 10px; fill: #666; }\n"
           ".note { font-size: 11px; fill: #888; font-style: italic; }\n"
           ".failure { font-size: 11px; fill: #b00020; }\n"
           ".cell { fill: #fff; stroke: #c8c8c8; stroke-width: 1; }\n"
           "path, rect { stroke-width: 0.8; stroke-linejoin: round; }\n"
           ".cutting { fill: #ffd2a6; stroke: #8a4300; }\n"
           ".noncutting { fill: #cfe8b4; stroke: #356b1a; }\n"
           ".arbor { fill: #bcd8f5; stroke: #1d4f8c; }\n"
           ".holder { fill: #e2e2e2; stroke: #3c3c3c; }\n"
           "path.cutting, path.noncutting, path.arbor, path.holder { fill-opacity: 0.8; fill-rule: evenodd; }\n"
           ".edges { fill: none; }\n"
           ".axis { stroke: #444; stroke-width: 0.7; stroke-dasharray: 7 3 1.5 3; }\n"
           ".scale { fill: none; stroke: #444; stroke-width: 1; }\n"
           "</style>\n";
    out << "<rect x=\"0\" y=\"0\" width=\"" << Number(width) << "\" height=\"" << Number(height)
        << "\" fill=\"#fff\"/>\n";
    out << "<text class=\"title\" x=\"" << Number(kMargin) << "\" y=\"34\">tqWorkRig tool gallery: " << cells.size()
        << " document types</text>\n";
    out << "<text class=\"subtitle\" x=\"" << Number(kMargin)
        << "\" y=\"56\">Typical metric tools in the default "
           "arbor and holder of their family, seen along +Y: X across, Z up, tip down. Left the whole assembly, right "
           "the tool alone, enlarged. Revolved parts as full sections.</text>\n";
    DrawLegend(out, kMargin, 84);
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const double x = kMargin + static_cast<double>(i % kColumns) * (kCellWidth + kGap);
        const double y = kHeader + static_cast<double>(i / kColumns) * (kCellHeight + kGap);
        DrawCell(out, cells[i], x, y);
    }
    out << "</svg>\n";

    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << out.str();
    file.close();
    if (!file) throw std::runtime_error("cannot write " + path);
}

}  // namespace gallery
