#pragma once

#include "foundation/Geometry.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tessaly {

/// An engraved line between two tabs: a dark stroke and a light one beside it, each a point wide.
struct TabSeparator {
    Line dark;
    Line light;
};

/// What is to be drawn on the bar, in points, y upwards from the bar's bottom edge.
struct DrawnTabs {
    std::vector<Point> titles; ///< bottom left corner of each title
    std::optional<Rect> selectedBox;
    std::vector<TabSeparator> separators;
    Rect trackingArea; ///< around the whole group
};

/// Places a row of tab titles, centred as a group. Points, y upwards.
///
/// The rectangles that take clicks are not the drawn boxes: they are computed by `layOutHitRectangles` alone
/// and have a height of their own, while drawing follows the frame at once. That is deliberate.
class TabBarLayout {
  public:
    /// Titles of these sizes, one at least; there are no hit rectangles yet.
    explicit TabBarLayout(std::vector<Size> textSizes);

    /// Computes every tab's hit rectangle anew, for a bar of that width.
    void layOutHitRectangles(double frameWidth);

    /// An index that no tab has draws no box.
    DrawnTabs drawn(Size frame, std::int64_t selectIndex) const;

    /// The first tab whose hit rectangle holds the point.
    std::optional<std::int64_t> tabAt(Point point) const;

    /// The tab `step` places further, kept within the row.
    std::int64_t neighbour(std::int64_t index, std::int64_t step) const;

    /// A bar of this size holds the group with a margin, and every hit rectangle and box within its height.
    Size preferredSize() const;

    const std::vector<Size>& textSizes() const { return textSizes_; }
    const std::vector<Rect>& hitRectangles() const { return hitRectangles_; }

  private:
    std::vector<Size> textSizes_;
    std::vector<Rect> hitRectangles_;
    std::int64_t totalWidth_; ///< of the group; every addition to it is cut, not rounded
    std::int64_t textHeight_; ///< of the last title, cut
};

} // namespace tessaly
