#include "chrome/TabBarLayout.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(TabBarLayout, takesClicksInRectanglesOfTheirOwnAndDrawsFromTheFrameAsItIs) {
    TabBarLayout layout{{{30.75, 13.75}, {40.75, 19.5}, {50.75, 15.75}}};
    EXPECT_EQ(layout.preferredSize(), (Size{16 + 152 + 16, 32})) << "a bar in which it has room";
    layout.layOutHitRectangles(400);
    // The group is 152 wide and starts at 124; the bottom edge is 15 / 2 - 5 in whole numbers.
    EXPECT_EQ(layout.hitRectangles(),
              (std::vector<Rect>{{119, 2, 40.75, 25}, {165.75, 2, 50.75, 25}, {222.5, 2, 60.75, 25}}));
    EXPECT_EQ(layout.tabAt({119, 2}), 0);
    EXPECT_EQ(layout.tabAt({159.75, 10}), std::nullopt) << "between two tabs";
    EXPECT_EQ(layout.tabAt({283, 26.9}), 2);
    EXPECT_EQ(layout.tabAt({130, 27}), std::nullopt) << "above them";

    const DrawnTabs tabs = layout.drawn({300, 32}, 1);
    const double y = (32 - 13.75) / 2; // of every title, by the height of the first
    EXPECT_EQ(tabs.titles, (std::vector<Point>{{74, y}, {120.75, y}, {177.5, y}}));
    EXPECT_EQ(tabs.selectedBox, (Rect{115.75, 9.75, 50.75, 12.5})) << "by its own title's height";
    EXPECT_EQ(tabs.separators.at(0).dark, (Line{{112.75, 6.875}, {112.75, 25.125}}));
    EXPECT_EQ(tabs.separators.at(1).light, (Line{{170.5, 9.75}, {170.5, 22.25}}));
    EXPECT_EQ(tabs.trackingArea, (Rect{74, y, 162.25, 17})) << "to 8 points behind the last title";
}

} // namespace
} // namespace tessaly
