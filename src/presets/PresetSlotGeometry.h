#pragma once

#include "foundation/Geometry.h"

#include <cstddef>
#include <optional>

namespace tessaly {

/// Where the thumbnails of the presets lie in their container: rows of five, from the top. In points, origin
/// at the container's top left corner, y downwards.
class PresetSlotGeometry {
  public:
    static constexpr double wideThumbDistant = 52.0;
    static constexpr double narrowThumbDistant = 49.0; ///< leaves room for a vertical scroller
    static constexpr std::size_t thumbnailsPerRow = 5;
    static constexpr double thumbnailSize = 40.0;
    static constexpr double containerWidth = 263.0;

    /// Positions in the list of presets, from `first` up to but not including `last`.
    struct Range {
        std::size_t first = 0;
        std::size_t last = 0;
    };

    /// Where a thumbnail that is put elsewhere comes to lie.
    struct Landing {
        std::size_t position; ///< that it would have
        Rect mark;            ///< between those that would be its neighbours
    };

    /// `thumbDistant`: from one column to the next.
    explicit PresetSlotGeometry(double thumbDistant) : thumbDistant_{thumbDistant} {}

    /// Column and row, counting from 0.
    static Point itemPos(std::size_t position);

    /// With `count` thumbnails.
    static Size containerSize(std::size_t count);
    static double thumbDistantFor(double containerHeight, double scrollViewHeight);

    Rect thumbnailRect(std::size_t position) const;

    /// The position of the thumbnail at a point, if one of `count` thumbnails is there.
    std::optional<std::size_t> positionAt(Point point, std::size_t count) const;

    /// Where one of `count` thumbnails comes to lie when it is dropped at a point, however far away; none
    /// where it would stay.
    std::optional<Landing> landingOf(std::size_t held, Point point, std::size_t count) const;

    /// Those of `count` thumbnails that lie, with any part of them, between two heights.
    static Range positionsBetween(double top, double bottom, std::size_t count);

  private:
    double thumbDistant_;
};

} // namespace tessaly
