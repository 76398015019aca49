// Where the thumbnails of the presets are.

#include "presets/PresetGallery.h"
#include "presets/PresetSlotGeometry.h"

#include "support/LogCapture.h"
#include "support/PresetProgram.h"

#include <gtest/gtest.h>
#include <random>

namespace tessaly {
namespace {

TEST(PresetGallery, laysItsThumbnailsOutCloserWhereTheScrollerNeedsRoom) {
    LogCapture log;
    NoHistory history;
    FakeGalleryView view;
    Gradient edited;
    PresetGallery gallery{edited, history, view, {[] {}, [] {}}};
    EXPECT_EQ(view.containerSize, (Size{263, 125}));
    const struct {
        int added; ///< negative: deleted
        double scrollHeight;
        double height;     ///< of the container
        double columns;    ///< their distance
        std::string slots; ///< that were worked out
        std::string last;  ///< of them
    } rows[] = {{5, 250, 170, 52, "1 2 3 4 5 ", "PosX: 4.000000; PosY: 0.000000"},
                {1, 215, 215, 49, "6 1 2 3 4 5 6 ", "PosX: 0.000000; PosY: 1.000000"},
                {1, 215, 215, 49, "7 ", "PosX: 1.000000; PosY: 1.000000"},
                {-2, 215, 215, 49, "1 2 3 4 5 6 1 2 3 4 5 ", "PosX: 4.000000; PosY: 0.000000"},
                {-2, 215, 215, 49, "1 2 3 4 1 2 3 ", "PosX: 2.000000; PosY: 0.000000"},
                {1, 215, 170, 52, "4 1 2 3 4 ", "PosX: 3.000000; PosY: 0.000000"}};
    for (const auto& row : rows) {
        log.messages.clear();
        view.scrollHeight = row.scrollHeight;
        for (int i = 0; i < std::abs(row.added); ++i) {
            row.added > 0 ? gallery.addGradientIntoPreset(edited) : gallery.deletePreset(0);
        }
        EXPECT_EQ(view.containerSize, (Size{263, row.height}));
        EXPECT_EQ(gallery.slots().thumbnailRect(6), (Rect{row.columns + 15, 60, 40, 40}));
        std::string slots;
        for (const std::string& message : log.messages) {
            slots += message.starts_with("Index: ") ? message.substr(7) + ' ' : "";
        }
        EXPECT_EQ(slots, row.slots);
        EXPECT_EQ(log.messages.back(), row.last) << "column and row";
    }
}

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
