#pragma once

#include "foundation/Geometry.h"
#include "sourceview/LineIndices.h"

#include <functional>
#include <string>
#include <vector>

namespace tessaly {

class TextLayout;

/// The number of one line, as drawn.
struct GutterLabel {
    std::size_t line = 0; ///< 0-based
    std::string text;     ///< the 1-based number
    Rect rectangle;       ///< in the gutter; the text starts at its left edge
    double rowY = 0.0;    ///< top of the line's first row in the gutter
    double rowHeight = 0.0;
    bool marked = false; ///< the line carries a marker

    bool operator==(const GutterLabel&) const = default;
};

/// Width and contents of a line-number gutter, over a text's layout and its line starts, both of which must
/// outlive this object. Points, y downwards from the gutter's top edge.
class GutterLayout {
  public:
    GutterLayout(const TextLayout& layout, const LineIndices& lines) : layout_{layout}, lines_{lines} {}

    /// Room for the digits of the last line's number, in whole points.
    double requiredThickness() const;

    /// The labels of all visible lines; `isMarked` takes 0-based lines.
    std::vector<GutterLabel> labels(double width, const std::function<bool(std::size_t)>& isMarked) const;

    /// Where a marker of that size comes, centred on the row.
    static Rect markerRect(const GutterLabel& label, double width, Size marker);

  private:
    GutterLabel labelOf(std::size_t line, const Rect& row, double width, bool marked) const;

    const TextLayout& layout_;
    const LineIndices& lines_;
};

} // namespace tessaly
