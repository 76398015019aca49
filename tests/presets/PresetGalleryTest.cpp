#include "presets/PresetGallery.h"

#include "model/GlobalData.h"
#include "presets/PresetNotification.h"
#include "support/FakeGalleryView.h"
#include "support/Gradients.h"
#include "support/LogCapture.h"

#include <gtest/gtest.h>
#include <random>

namespace tessaly {
namespace {

TEST(PresetSlotGeometry, placesFiveThumbnailsARow) {
    const std::vector<std::tuple<std::int64_t, std::size_t, Point>> rows{
        {52, 0, {15, 15}}, {52, 4, {223, 15}}, {52, 5, {15, 60}},
        {49, 1, {64, 15}}, {49, 9, {211, 60}}, {52, 9999, {223, 89970}}};
    for (const auto& [distant, position, origin] : rows) {
        EXPECT_EQ(PresetSlotGeometry{distant}.thumbnailRect(position), (Rect{origin.x, origin.y, 40, 40}));
    }
}

TEST(PresetSlotGeometry, hitTestAndVisibleRangeAgreeWithTheRectangles) {
    const PresetSlotGeometry slots{PresetSlotGeometry::narrowThumbDistant};
    std::mt19937 random{1};
    std::uniform_int_distribution<int> place{-120, 660};
    for (int i = 0; i < 50'000; ++i) {
        const std::size_t count = random() % 14;
        const Point point{place(random) / 2.0, place(random) / 2.0}; // edges are met often
        const auto visible = PresetSlotGeometry::positionsBetween(point.y, point.y + 30, count);
        std::optional<std::size_t> hit;
        for (std::size_t position = 0; position < 20; ++position) {
            const Rect rect = slots.thumbnailRect(position);
            const bool isVisible = position < count && rect.maxY() > point.y && rect.y < point.y + 30;
            ASSERT_EQ(visible.first <= position && position < visible.last, isVisible)
                << position << " at " << point.y;
            hit = position < count && rect.contains(point) ? position : hit;
        }
        ASSERT_EQ(slots.positionAt(point, count), hit) << point.x << ' ' << point.y << " of " << count;
    }
}

class PresetGalleryTest : public testing::Test {
  protected:
    PresetGalleryTest() {
        resetToDefaultGradient();
        gallery.observeNotifications();
    }

    void add(int count, const void* sender = nullptr) {
        for (int i = 0; i < count; ++i) {
            GlobalData::sharedData().setOrientationType(i); // tells the presets apart
            gallery.addGradientIntoPreset(sender);
        }
    }

    void remove(std::int64_t index) const {
        center.post(presetNotification::makeDeleteGradient(index, this));
    }

    LogCapture log;
    NotificationCenter& center = NotificationCenter::defaultCenter();
    FakeGalleryView view;
    int applied = 0, saves = 0;
    PresetGallery gallery{view, {[this] { ++applied; }, [this] { ++saves; }}};
};

TEST_F(PresetGalleryTest, growsByRowsAndNarrowsWhenTheScrollerNeedsRoom) {
    const std::vector<std::tuple<int, double, double, int>> rows{{0, 125, 52, 0},  {1, 170, 52, 0},
                                                                 {6, 215, 52, 0},  {10, 215, 52, 0},
                                                                 {11, 260, 49, 1}, {12, 260, 49, 1}};
    view.scrollHeight = 260;
    for (const auto& [presets, height, distant, relayouts] : rows) {
        add(presets - view.thumbnails);
        EXPECT_EQ(view.containerSize, (Size{263, height})) << presets;
        EXPECT_EQ(gallery.slots().thumbnailRect(1).x, 15 + distant) << presets;
        EXPECT_EQ(view.relayouts, relayouts) << presets;
        EXPECT_EQ(gallery.gradientIndex(), presets);
    }
    EXPECT_EQ(saves, 0) << "without a sender nothing is saved";
}

TEST_F(PresetGalleryTest, deletingMovesTheLaterOnesAndKeepsTheHeight) {
    add(4, this);
    EXPECT_EQ(saves, 4);
    log.messages.clear();
    remove(1);
    EXPECT_EQ(log.messages, (std::vector<std::string>{"deletePresetGradientNotification", "index: 1",
                                                      "Index: 1", "PosX: 0.000000; PosY: 0.000000",
                                                      "Index: 2", "PosX: 1.000000; PosY: 0.000000",
                                                      "Index: 3", "PosX: 2.000000; PosY: 0.000000"}));
    EXPECT_EQ(gallery.presetGradient()[1].orientationType, 2) << "the second went, not another";
    EXPECT_EQ(gallery.presetGradient()[1].index, 1);
    EXPECT_EQ(gallery.gradientIndex(), 3);
    EXPECT_EQ(saves, 5);
    add(4);
    for (const std::int64_t index : {7, -1, 0, 0, 0, 0, 0, 0, 0}) { // the first two there are not
        remove(index);
    }
    EXPECT_EQ(view.thumbnails, 0);
    EXPECT_EQ(gallery.gradientIndex(), 0);
    EXPECT_EQ(view.containerSize.height, 215);
    add(1);
    EXPECT_EQ(view.containerSize.height, 170);
}

TEST_F(PresetGalleryTest, appliesAPresetWithoutTyingItToTheGradient) {
    GlobalData& data = GlobalData::sharedData();
    data.setColorFormatType(colorFormat::hsla);
    const std::vector<double> positions{0.0, 0.5, 1.0};
    const Preset preset{
        positions, {Color::white(), Color::black(), Color::white()}, {1, 1, 1, 0.2}, orientation::radial, 0};
    const Notification change = presetNotification::makeGradientIndexChanged(preset, &view);
    center.post(change);
    EXPECT_EQ(change.name, "PresetGradientIndexChanged");
    for (const char* const key :
         {"colorMarkerPos", "colorMarkerColor", "colorMarkerOpacity", "orientationType"}) {
        EXPECT_TRUE(change.userInfo.contains(key)) << key;
    }
    EXPECT_EQ(log.messages, std::vector<std::string>{"updateGradientNotification"});
    EXPECT_EQ(data.colorFormatType(), colorFormat::hsla) << "the notation is no part of a preset";
    gallery.addGradientIntoPreset(nullptr);
    data.colorMarkerPos()[1] = 0.7;
    EXPECT_EQ(gallery.presetGradient()[0], preset);
    center.post(change);
    EXPECT_EQ(data.colorMarkerPos(), positions);
    EXPECT_EQ(applied, 2);
    center.post({"PresetGradientIndexChanged", &view, {{"index", 0}}}); // no preset with it
    center.post({"DeletePresetGradient", &view, {}});
    EXPECT_EQ(applied, 2);
    EXPECT_EQ(gallery.presetGradient().size(), 1U);
    center.post({"DeletePresetGradient", &view, {{"index", std::int64_t{0}}}});
    EXPECT_TRUE(gallery.presetGradient().empty());
}

} // namespace
} // namespace tessaly
