#include "presets/PresetGallery.h"

#include "support/NoHistory.h"
#include "support/PresetProgram.h"

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

TEST(PresetGallery, growsByRowsNarrowsForTheScrollerAndKeepsItsHeightOverDeletes) {
    FakeGalleryView view;
    int saves = 0;
    Gradient edited;
    NoHistory history;
    PresetGallery gallery{edited, history, view, {[] {}, [&] { ++saves; }}};
    view.scrollHeight = 260;
    const std::vector<std::tuple<int, double, double>> rows{
        {0, 125, 52}, {1, 170, 52}, {6, 215, 52}, {10, 215, 52}, {11, 260, 49}};
    for (const auto& [presets, height, distant] : rows) {
        while (std::ssize(gallery.presetGradient()) < presets) {
            gallery.addGradientIntoPreset(Gradient{{}, std::ssize(gallery.presetGradient())});
        }
        EXPECT_EQ(view.containerSize, (Size{263, height})) << presets;
        EXPECT_EQ(gallery.slots().thumbnailRect(1).x, 15 + distant) << presets;
    }
    EXPECT_EQ(saves, 0);
    for (const std::size_t position : {1, 0, 0, 0, 0, 0, 0, 0, 0}) {
        gallery.deletePreset(position);
    }
    EXPECT_EQ(view.changes, 11 + 1 + 9) << "presets added, columns narrowed, presets deleted";
    EXPECT_EQ(view.containerSize.height, 260);
    gallery.addGradientIntoPreset();
    EXPECT_EQ(saves, 10);
    EXPECT_EQ(view.containerSize.height, 170);
    EXPECT_EQ(gradientsIn(gallery), (std::vector{Gradient{{}, 9}, Gradient{{}, 10}, edited}));
}

} // namespace
} // namespace tessaly
