#include "presets/PresetSlotGeometry.h"

#include <gtest/gtest.h>
#include <random>

namespace tessaly {
namespace {

TEST(PresetSlotGeometry, hitTestAndVisibleRangeAgreeWithTheRectangles) {
    const PresetSlotGeometry slots{PresetSlotGeometry::narrowThumbDistant};
    EXPECT_EQ(slots.thumbnailRect(9'999), (Rect{211, 89'970, 40, 40}));
    std::mt19937 random{1};
    std::uniform_int_distribution<int> place{-120, 660};
    for (int i = 0; i < 50'000; ++i) {
        const std::size_t count = random() % 14;
        const Point point{place(random) / 2.0, place(random) / 2.0}; // edges are met often
        const auto visible = PresetSlotGeometry::positionsBetween(point.y, point.y + 30, count);
        std::optional<std::size_t> hit;
        for (std::size_t position = 0; position < count; ++position) {
            const Rect rect = slots.thumbnailRect(position);
            const bool isVisible = rect.maxY() > point.y && rect.y < point.y + 30;
            ASSERT_EQ(visible.first <= position && position < visible.last, isVisible);
            hit = rect.contains(point) ? position : hit;
        }
        ASSERT_EQ(slots.positionAt(point, count), hit) << point.x << ' ' << point.y << " of " << count;
    }
}

} // namespace
} // namespace tessaly
