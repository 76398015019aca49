#include "sourceview/GutterLayout.h"

#include "sourceview/TextLayout.h"

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

constexpr double margin = 5.0; // on each side of the widest number
constexpr double leastThickness = 22.0;
constexpr double markerMargin = 1.0; // at the right of a marker's image

// Places along the gutter are kept in single precision.
double singlePrecision(double value) {
    return static_cast<double>(static_cast<float>(value));
}

std::size_t digitsOf(std::size_t number) {
    return number == 0 ? 1 : static_cast<std::size_t>(std::log10(static_cast<double>(number))) + 1;
}

} // namespace

double GutterLayout::requiredThickness() const {
    const std::string widest(digitsOf(lines_.count()), '8');
    const double width = layout_.sizeOf(widest).width + 2 * margin;
    return std::ceil(singlePrecision(std::max(width, leastThickness)));
}

std::vector<GutterLabel> GutterLayout::labels(double width,
                                              const std::function<bool(std::size_t)>& isMarked) const {
    std::vector<GutterLabel> labels;
    if (lines_.count() == 0) {
        return labels;
    }
    const TextRange characters = layout_.charactersIn(layout_.visibleRect());
    // One more, so that a line that starts right behind the last visible character is visible too.
    const std::size_t end = characters.end() + 1;
    std::size_t line = lines_.lineNumberForCharacterIndex(characters.location);
    for (; line < lines_.count() && lines_[line] <= end; ++line) {
        const std::size_t start = lines_[line];
        if (start < characters.location || start == end) {
            continue;
        }
        const std::vector<Rect> rectangles = layout_.rectanglesOfEmptyRange(start);
        if (!rectangles.empty()) {
            labels.push_back(labelOf(line, rectangles.front(), width, isMarked(line)));
        }
    }
    return labels;
}

GutterLabel GutterLayout::labelOf(std::size_t line, const Rect& row, double width, bool marked) const {
    const std::string text = std::to_string(line + 1);
    const Size size = layout_.sizeOf(text);
    const double y =
        singlePrecision(row.y + singlePrecision(layout_.insetHeight()) - layout_.visibleRect().y);
    const Rect rectangle{width - size.width - margin, y + (row.height - size.height) / 2, width - 2 * margin,
                         row.height};
    return {line, text, rectangle, y, row.height, marked};
}

Rect GutterLayout::markerRect(const GutterLabel& label, double width, Size marker) {
    return {width - marker.width - markerMargin, label.rowY + label.rowHeight / 2 - marker.height / 2,
            marker.width, marker.height};
}

} // namespace tessaly
