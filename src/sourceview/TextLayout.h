#pragma once

#include "foundation/Geometry.h"
#include "foundation/TextRange.h"

#include <optional>

namespace tessaly {

/// What the line-number gutter asks of a laid-out text. Points, y downwards; offsets count UTF-16 units.
class TextLayout {
  public:
    virtual ~TextLayout() = default;

    /// The row that starts at that offset, in the coordinates of the text; none when it is not laid out yet
    /// or no row starts there.
    virtual std::optional<Rect> rectangleOfRowAt(std::size_t offset) const = 0;

    /// The characters of all visible rows that the rectangle touches.
    virtual TextRange charactersIn(const Rect& rectangle) const = 0;

    /// The part of the text that is shown, in the coordinates of the text.
    virtual Rect visibleRect() const = 0;
};

} // namespace tessaly
