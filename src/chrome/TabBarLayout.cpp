#include "chrome/TabBarLayout.h"

#include "foundation/Truncation.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace tessaly {
namespace {

constexpr double gap = 16.0; // between two titles, the separator in its middle
constexpr double halfGap = gap / 2;
constexpr double boxMargin = 5.0; // of hit rectangle and drawn box, on each side of the title

std::int64_t widthOfGroup(const std::vector<Size>& titles) {
    const std::int64_t gaps = truncated(gap) * (std::ssize(titles) - 1);
    return std::accumulate(titles.begin(), titles.end(), gaps, [](std::int64_t width, const Size& title) {
        return truncated(static_cast<double>(width) + title.width);
    });
}

} // namespace

TabBarLayout::TabBarLayout(std::vector<Size> textSizes)
    : textSizes_{std::move(textSizes)},
      totalWidth_{widthOfGroup(textSizes_)},
      textHeight_{truncated(textSizes_.back().height)} {}

void TabBarLayout::layOutHitRectangles(double frameWidth) {
    hitRectangles_.clear();
    double x = (frameWidth - static_cast<double>(totalWidth_)) / 2;
    const std::int64_t halfHeight = textHeight_ / 2; // a whole number
    const double y = static_cast<double>(halfHeight) - boxMargin;
    const double height = static_cast<double>(textHeight_) + 2 * boxMargin;
    for (const Size& size : textSizes_) {
        hitRectangles_.push_back({x - boxMargin, y, size.width + 2 * boxMargin, height});
        x += size.width + gap;
    }
}

DrawnTabs TabBarLayout::drawn(Size frame, std::int64_t selectIndex) const {
    DrawnTabs tabs;
    const double start = (frame.width - static_cast<double>(totalWidth_)) / 2;
    const double y = (frame.height - textSizes_.front().height) / 2;
    double x = start;
    for (std::size_t i = 0; i < textSizes_.size(); ++i) {
        const Size& size = textSizes_[i];
        const double bottom = size.height / 2;
        if (static_cast<std::int64_t>(i) == selectIndex) {
            tabs.selectedBox =
                Rect{x - boxMargin, bottom, size.width + 2 * boxMargin, frame.height - size.height};
        }
        tabs.titles.push_back({x, y});
        x += size.width + halfGap;
        if (i + 1 < textSizes_.size()) {
            const double top = frame.height - bottom;
            tabs.separators.push_back({{{x, bottom}, {x, top}}, {{x + 1, bottom}, {x + 1, top}}});
            x += halfGap;
        }
    }
    tabs.trackingArea = {start, y, x - start, frame.height - static_cast<double>(textHeight_)};
    return tabs;
}

std::optional<std::int64_t> TabBarLayout::tabAt(Point point) const {
    const auto hit = std::find_if(hitRectangles_.begin(), hitRectangles_.end(),
                                  [&](const Rect& rectangle) { return rectangle.contains(point); });
    if (hit == hitRectangles_.end()) {
        return std::nullopt;
    }
    return hit - hitRectangles_.begin();
}

std::int64_t TabBarLayout::neighbour(std::int64_t index, std::int64_t step) const {
    const auto row = std::ssize(textSizes_);
    return std::clamp<std::int64_t>(std::clamp<std::int64_t>(index, -1, row) + step, 0, row - 1);
}

Size TabBarLayout::preferredSize() const {
    constexpr double step = 8.0; // the rhythm of the window
    constexpr double leastHeight = 32.0;
    const double twoTitles = 2 * static_cast<double>(textHeight_);
    return {static_cast<double>(totalWidth_) + 2 * gap,
            std::max(leastHeight, std::ceil(twoTitles / step) * step)};
}

} // namespace tessaly
