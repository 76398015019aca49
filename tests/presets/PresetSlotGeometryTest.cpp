#include "presets/PresetSlotGeometry.h"

#include <gtest/gtest.h>
#include <random>

namespace tessaly {
namespace {

TEST(PresetSlotGeometry, aThumbnailLandsBehindThoseThatThePointHasPassedInTheNearestRow) {
    std::mt19937 random{2};
    std::uniform_int_distribution<int> place{-240, 660};
    for (int i = 0; i < 50'000; ++i) {
        const PresetSlotGeometry slots{i % 2 == 0 ? PresetSlotGeometry::narrowThumbDistant
                                                  : PresetSlotGeometry::wideThumbDistant};
        const std::size_t count = 1 + random() % 13, held = random() % count;
        const Point point{place(random) / 2.0, place(random) / 2.0};
        const auto middle = [&](std::size_t position) { return slots.thumbnailRect(position).center(); };
        double row = middle(0).y;
        for (std::size_t position = 0; position < count; ++position) {
            const double y = middle(position).y;
            row = std::abs(y - point.y) <= std::abs(row - point.y) ? y : row;
        }
        std::size_t passed = 0;
        for (std::size_t position = 0; position < count; ++position) {
            const Point here = middle(position);
            passed += here.y < row || (here.y == row && here.x < point.x) ? 1 : 0;
        }
        const auto landing = slots.landingOf(held, point, count);
        ASSERT_EQ(landing.has_value(), passed != held && passed != held + 1);
        if (landing) {
            ASSERT_EQ(landing->position, passed - (passed > held ? 1 : 0)) << point.x << ' ' << point.y;
            ASSERT_EQ(landing->mark.center().y, row);
            ASSERT_LE(landing->mark.maxX(), PresetSlotGeometry::containerWidth);
        }
    }
}

} // namespace
} // namespace tessaly
