#include "chrome/TabBarLayout.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(TabBarLayout, takesClicksInRectanglesOfTheirOwn) {
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
}

} // namespace
} // namespace tessaly
