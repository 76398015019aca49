#pragma once

#include "foundation/Geometry.h"
#include "foundation/TextRange.h"

#include <string_view>
#include <vector>

namespace tessaly {

/// What the line-number gutter asks of a laid-out text. Points, y downwards; offsets count UTF-16 units.
class TextLayout {
  public:
    virtual ~TextLayout() = default;

    /// The rectangles of the empty range at the start of a line, in the coordinates of the text: the first is
    /// that of the line's first row. None while the line is not laid out.
    virtual std::vector<Rect> rectanglesOfEmptyRange(std::size_t offset) const = 0;

    /// The characters of all rows that the rectangle touches.
    virtual TextRange charactersIn(const Rect& rectangle) const = 0;

    /// The part of the text that the scroll view shows.
    virtual Rect visibleRect() const = 0;

    /// Empty space above the text, which its rectangles do not count.
    virtual double insetHeight() const = 0;

    /// Size of a label in the gutter's font.
    virtual Size sizeOf(std::string_view label) const = 0;
};

} // namespace tessaly
