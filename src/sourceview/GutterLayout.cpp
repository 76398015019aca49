#include "sourceview/GutterLayout.h"

#include "sourceview/LineIndices.h"
#include "sourceview/TextLayout.h"

#include <algorithm>
#include <cmath>

namespace tessaly::gutter {
namespace {

constexpr double margin = 5.0; // on each side of the widest number
constexpr double leastThickness = 22.0;
constexpr double markerMargin = 1.0; // at the right of a marker's image

// Places along the gutter are kept in single precision.
double singlePrecision(double value) {
    return static_cast<double>(static_cast<float>(value));
}

GutterLabel labelOf(std::size_t line, double rowY, double rowHeight, double width, const Measure& sizeOf) {
    const std::string text = std::to_string(line + 1);
    const Size size = sizeOf(text);
    const Rect rectangle{width - size.width - margin, rowY + (rowHeight - size.height) / 2,
                         width - 2 * margin, rowHeight};
    return {line, text, rectangle, rowY, rowHeight};
}

} // namespace

double requiredThickness(const LineIndices& lines, const Measure& sizeOf) {
    const std::string widest(std::to_string(lines.starts().size()).size(), '8');
    const double width = sizeOf(widest).width + 2 * margin;
    return std::ceil(singlePrecision(std::max(width, leastThickness)));
}

std::vector<GutterLabel> labels(const TextLayout& text, const LineIndices& lines, double width,
                                const Measure& sizeOf) {
    std::vector<GutterLabel> labels;
    const Rect visible = text.visibleRect();
    const TextRange characters = text.charactersIn(visible);
    std::size_t line = lines.lineNumberForCharacterIndex(characters.location);
    // A line that starts right behind the last visible character is visible too.
    for (; line < lines.starts().size() && lines.starts()[line] <= characters.end(); ++line) {
        const std::size_t start = lines.starts()[line];
        if (start < characters.location) {
            continue;
        }
        if (const auto row = text.rectangleOfRowAt(start)) {
            labels.push_back(labelOf(line, singlePrecision(row->y - visible.y), row->height, width, sizeOf));
        }
    }
    return labels;
}

Rect markerRect(const GutterLabel& label, double width, Size marker) {
    return {width - marker.width - markerMargin, label.rowY + label.rowHeight / 2 - marker.height / 2,
            marker.width, marker.height};
}

} // namespace tessaly::gutter
