#pragma once

#include "foundation/Geometry.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace tessaly {

class LineIndices;
class TextLayout;

/// The number of one line, as drawn.
struct GutterLabel {
    std::size_t line = 0; ///< 0-based
    std::string text;     ///< the 1-based number
    Rect rectangle;       ///< in the gutter; the text starts at its left edge
    double rowY = 0.0;    ///< top of the line's first row in the gutter
    double rowHeight = 0.0;

    bool operator==(const GutterLabel&) const = default;
};

/// Width and contents of a line-number gutter. Points, y downwards from the gutter's top edge.
namespace gutter {

/// Size of a label in the gutter's font.
using Measure = std::function<Size(const std::string& label)>;

/// Room for the digits of the last line's number, in whole points.
double requiredThickness(const LineIndices& lines, const Measure& sizeOf);

/// The labels of all visible lines.
std::vector<GutterLabel> labels(const TextLayout& text, const LineIndices& lines, double width,
                                const Measure& sizeOf);

/// Where a marker of that size comes, centred on the row.
Rect markerRect(const GutterLabel& label, double width, Size marker);

} // namespace gutter
} // namespace tessaly
