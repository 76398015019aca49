// The row of tabs, what it posts, and the addresses behind link labels.

#include "chrome/TabBarLayout.h"

#include "chrome/LinkAddress.h"
#include "chrome/TabNotification.h"

#include <array>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(TabBarLayout, takesClicksInRectanglesOfTheirOwn) {
    TabBarLayout layout{{{30.75, 13.75}, {40.75, 19.5}, {50.75, 15.75}}};
    EXPECT_EQ(layout.preferredSize(), (Size{16 + 152 + 16, 32})) << "a bar in which it has room";
    layout.layOutHitRectangles(200); // for a narrower one, which is forgotten
    layout.layOutHitRectangles(400);
    // The group is 152 wide and starts at 124; the bottom edge is 15 / 2 - 5 in whole numbers.
    EXPECT_EQ(layout.hitRectangles(),
              (std::vector<Rect>{{119, 2, 40.75, 25}, {165.75, 2, 50.75, 25}, {222.5, 2, 60.75, 25}}));
    EXPECT_EQ(layout.tabAt({119, 2}), 0);
    EXPECT_EQ(layout.tabAt({159.75, 10}), std::nullopt) << "between two tabs";
    EXPECT_EQ(layout.tabAt({283, 26.9}), 2);
    EXPECT_EQ(layout.tabAt({130, 27}), std::nullopt) << "above them";
}

TEST(TabBarLayout, drawsTitlesBoxAndSeparatorsWithinTheFrame) {
    const TabBarLayout layout{{{30.75, 13.75}, {40.75, 19.5}, {50.75, 15.75}}};
    const DrawnTabs tabs = layout.drawn({400, 32}, 1);
    EXPECT_EQ(tabs.titles, (std::vector<Point>{{124, 9.125}, {170.75, 9.125}, {227.5, 9.125}}));
    EXPECT_EQ(tabs.selectedBox, (Rect{165.75, 9.75, 50.75, 12.5}));
    ASSERT_EQ(tabs.separators.size(), 2U);
    EXPECT_EQ(tabs.separators[0].dark, (Line{{162.75, 6.875}, {162.75, 25.125}}));
    EXPECT_EQ(tabs.separators[1].light, (Line{{220.5, 9.75}, {220.5, 22.25}}));
    EXPECT_EQ(tabs.trackingArea, (Rect{124, 9.125, 162.25, 17}));
    EXPECT_FALSE(layout.drawn({400, 32}, 3).selectedBox);
    EXPECT_EQ((TabBarLayout{std::vector{Size{30, 21.5}}}.preferredSize()), (Size{30 + 2 * 16, 48}))
        << "whole steps of 8";
}

TEST(TabBarLayout, staysWithinTheRowFromWhereverItStarts) {
    const TabBarLayout layout{std::vector(3, Size{30, 15})};
    for (const auto& [from, step, to] :
         {std::array{0, 1, 1}, {2, 1, 2}, {0, -1, 0}, {9, -1, 2}, {-5, 1, 0}}) {
        EXPECT_EQ(layout.neighbour(from, step), to) << from << ' ' << step;
    }
}

TEST(TabNotification, carriesTheIndexAndSurvivesItsAbsence) {
    EXPECT_EQ(tabNotification::indexOf(tabNotification::makeSelectIndexChanged(2, nullptr)), 2);
    EXPECT_EQ(tabNotification::indexOf({tabNotification::selectIndexChanged, nullptr, {}}), std::nullopt);
}

TEST(LinkAddress, putsThePrefixWhereThereIsNoneAndTakesItFromLabels) {
    for (const auto& [text, address] : {std::pair{"", "http://"},
                                        {"example.org", "http://example.org"},
                                        {"https://example.org", "http://https://example.org"},
                                        {"see HTtp://A.org", "see HTtp://A.org"},
                                        {"http:/example.org", "http://http:/example.org"}}) {
        const LinkAddress link = LinkAddress::ofLabel(text);
        EXPECT_EQ(link.address, address);
        EXPECT_EQ(link.logLine, (link.address == text ? "Found " : "Not Found ") + std::string{text});
    }
    EXPECT_EQ(LinkAddress::labelText("https://example.org/a/"), "example.org/a");
    EXPECT_EQ(LinkAddress::labelText("http://a"), "http://a");
    EXPECT_EQ(LinkAddress::labelText(""), "");
}

} // namespace
} // namespace tessaly
