#include "presets/PresetGallery.h"

#include "presets/PresetNotification.h"
#include "support/Gradients.h"
#include "support/LogCapture.h"
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

class PresetGalleryTest : public testing::Test {
  protected:
    const LogCapture log;
    FakeGalleryView view;
    int applied = 0, saves = 0;
    Gradient edited = defaultRecord().gradient;
    PresetGallery gallery{edited, view, {[this] { ++applied; }, [this] { ++saves; }}};
};

TEST_F(PresetGalleryTest, growsByRowsNarrowsForTheScrollerAndKeepsItsHeightOverDeletes) {
    view.scrollHeight = 260;
    const std::vector<std::tuple<int, double, double>> rows{
        {0, 125, 52}, {1, 170, 52}, {6, 215, 52}, {10, 215, 52}, {11, 260, 49}};
    for (const auto& [presets, height, distant] : rows) {
        for (auto number = std::ssize(gallery.presetGradient()); number < presets; ++number) {
            edited.setOrientation(number); // tells the presets apart
            gallery.addGradientIntoPreset(number < 10 ? nullptr : this);
        }
        EXPECT_EQ(view.containerSize, (Size{263, height})) << presets;
        EXPECT_EQ(gallery.slots().thumbnailRect(1).x, 15 + distant) << presets;
    }
    EXPECT_EQ(saves, 1) << "only those with a sender are saved";
    for (const std::int64_t index : {1, 11, -1, 0, 0, 0, 0, 0, 0, 0, 0}) { // two of them there are not
        NotificationCenter::defaultCenter().post(presetNotification::makeDeleteGradient(index, this));
    }
    EXPECT_EQ(saves, 10);
    EXPECT_EQ(view.changes, 11 + 1 + 9) << "presets added, columns narrowed, presets deleted";
    EXPECT_EQ(view.containerSize.height, 260);
    gallery.addGradientIntoPreset(nullptr);
    EXPECT_EQ(view.containerSize.height, 170);
    EXPECT_EQ(gallery.presetGradient()[0].gradient.orientation(), 9);
    EXPECT_EQ(gallery.presetGradient()[2].index, 2);
}

TEST_F(PresetGalleryTest, appliesAPresetWithoutTyingItToTheGradient) {
    Preset preset{
        Gradient{{{0.0, Color::white(), 0.2}, {0.5, Color::black()}, {1.0}, {1.0}}, orientation::radial}};
    preset.gradient.remove(0); // what that leaves behind goes with it
    const Notification change = presetNotification::makeGradientIndexChanged(preset, &view);
    NotificationCenter::defaultCenter().post(change);
    gallery.addGradientIntoPreset(nullptr);
    edited.remove(1);
    EXPECT_EQ(gallery.presetGradient()[0], preset);
    NotificationCenter::defaultCenter().post(change);
    EXPECT_EQ(edited, preset.gradient);
    EXPECT_EQ(applied, 2);
}

} // namespace
} // namespace tessaly
