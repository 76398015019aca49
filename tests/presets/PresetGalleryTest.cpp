#include "presets/PresetGallery.h"

#include "support/LogCapture.h"
#include "support/PresetProgram.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(PresetGallery, laysItsThumbnailsOutCloserWhereTheScrollerNeedsRoom) {
    LogCapture log;
    NoHistory history;
    FakeGalleryView view;
    Gradient edited;
    PresetGallery gallery{edited, history, view, {[] {}, [] {}}};
    EXPECT_EQ(view.containerSize, (Size{263, 125}));
    const auto add = [&](int times) {
        for (; times > 0; --times) {
            gallery.addGradientIntoPreset(edited);
        }
    };
    const auto remove = [&](int times) {
        for (; times > 0; --times) {
            gallery.deletePreset(0);
        }
    };
    const struct {
        std::function<void()> act;
        double height;     ///< of the container
        double columns;    ///< their distance
        std::string slots; ///< that were worked out
        std::string last;  ///< of them
    } rows[] = {{[&] { add(5); }, 170, 52, "1 2 3 4 5 ", "PosX: 4.000000; PosY: 0.000000"},
                {[&] { view.scrollHeight = 215, add(1); }, 215, 49, "6 1 2 3 4 5 6 ",
                 "PosX: 0.000000; PosY: 1.000000"},
                {[&] { add(1); }, 215, 49, "7 ", "PosX: 1.000000; PosY: 1.000000"},
                {[&] { remove(2); }, 215, 49, "1 2 3 4 5 6 1 2 3 4 5 ", "PosX: 4.000000; PosY: 0.000000"},
                {[&] { remove(2); }, 215, 49, "1 2 3 4 1 2 3 ", "PosX: 2.000000; PosY: 0.000000"},
                {[&] { add(1); }, 170, 52, "4 1 2 3 4 ", "PosX: 3.000000; PosY: 0.000000"},
                {[&] { remove(1); }, 170, 52, "1 2 3 ", "PosX: 2.000000; PosY: 0.000000"}};
    for (const auto& row : rows) {
        log.messages.clear();
        row.act();
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

} // namespace
} // namespace tessaly
