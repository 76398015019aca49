#include "chrome/TabBarLayout.h"

#include <array>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

TabBarLayout barOf(const std::vector<Size>& titles) {
    TabBarLayout layout;
    for (const Size& title : titles) {
        layout.addTab(title);
    }
    return layout;
}

TEST(TabBarLayout, cutsEveryAdditionToWholePoints) {
    TabBarLayout layout = barOf({{30.9, 13.9}, {40.9, 17.9}, {50.9, 15.9}});
    EXPECT_EQ(layout.textHeight(), 15) << "of the title added last";
    EXPECT_EQ(layout.totalWidth(), 30 + 40 + 50) << "no gaps before the first layout";
    layout.layOutHitRectangles(300);
    EXPECT_EQ(layout.totalWidth(), 2 * 16 + 30 + 40 + 50);
    layout.addTab({0.5, 12.2});
    EXPECT_EQ(layout.totalWidth(), 152) << "a tab added later has no gap until the next layout";
}

TEST(TabBarLayout, takesClicksInRectanglesOfTheirOwn) {
    TabBarLayout layout = barOf({{30.5, 15}, {40.25, 15}, {50, 15}});
    layout.layOutHitRectangles(400);
    // total 152, so the group starts at 124; the bottom edge is 15 / 2 - 5 in whole numbers.
    EXPECT_EQ(layout.hitRectangles(),
              (std::vector<Rect>{{119, 2, 40.5, 25}, {165.5, 2, 50.25, 25}, {221.75, 2, 60, 25}}));
    const std::vector<std::pair<Point, std::optional<std::int64_t>>> clicks{
        {{119, 2}, 0}, {{159.5, 10}, {}}, {{281.5, 26.9}, 2}, {{130, 27}, {}}};
    for (const auto& [point, tab] : clicks) { // the second falls between two tabs, the last above them
        EXPECT_EQ(layout.tabAt(point), tab) << point.x;
    }
    layout.layOutHitRectangles(10);
    EXPECT_EQ(layout.hitRectangles()[0].x, -76) << "a group wider than the bar stays centred";
}

TEST(TabBarLayout, drawsFromTheFrameAsItIs) {
    TabBarLayout layout = barOf({{30.5, 15}, {40.25, 19}, {50, 17}});
    layout.layOutHitRectangles(1);
    const DrawnTabs tabs = layout.drawn({400, 32}, 1);
    EXPECT_EQ(tabs.titles, (std::vector<Point>{{124, 8.5}, {170.5, 8.5}, {226.75, 8.5}}))
        << "all at the height of the first title";
    EXPECT_EQ(tabs.selectedBox, (Rect{165.5, 9.5, 50.25, 13})) << "by its own title's height";
    ASSERT_EQ(tabs.separators.size(), 2U);
    EXPECT_EQ(tabs.separators[0].dark, (Line{{162.5, 7.5}, {162.5, 24.5}}));
    EXPECT_EQ(tabs.separators[0].light, (Line{{163.5, 7.5}, {163.5, 24.5}}));
    EXPECT_EQ(tabs.separators[1].dark, (Line{{218.75, 9.5}, {218.75, 22.5}}));
    EXPECT_EQ(tabs.trackingPath, (Rect{124, 8.5, 160.75, 15})) << "to 8 points behind the last title";
    for (const std::int64_t none : {-1, 3}) {
        EXPECT_EQ(layout.drawn({400, 32}, none).selectedBox, std::nullopt);
    }
    EXPECT_EQ(TabBarLayout{}.drawn({400, 32}, 0).trackingPath, Rect{});
}

TEST(TabBarLayout, theKeyboardStaysWithinTheRow) {
    const TabBarLayout layout = barOf({{30, 15}, {40, 15}, {50, 15}});
    const std::vector<std::array<std::int64_t, 3>> rows{{0, 1, 1},  {2, 1, 2}, {0, -1, 0}, {-1, 1, 0},
                                                        {7, -1, 2}, {1, 3, 2}, {1, -3, 0}};
    for (const auto& [from, step, to] : rows) {
        EXPECT_EQ(layout.neighbour(from, step), to) << from << " by " << step;
    }
    EXPECT_EQ(TabBarLayout{}.neighbour(0, 1), std::nullopt);
}

} // namespace
} // namespace tessaly
