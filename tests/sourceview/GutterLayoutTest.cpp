#include "sourceview/GutterLayout.h"

#include "sourceview/TextLayout.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

/// Every character in a row of its own, 20 points high, shown from `top` on.
struct FakeTextLayout : TextLayout {
    std::vector<Rect> rectanglesOfEmptyRange(std::size_t offset) const override {
        ++asked;
        const double y = 20.0 * static_cast<double>(offset);
        return y == notLaidOut ? std::vector<Rect>{} : std::vector<Rect>{{0, y, 1, 20}, {0, -1000, 1, 1}};
    }
    TextRange charactersIn(const Rect& rectangle) const override {
        const auto first = static_cast<std::size_t>(rectangle.y / 20);
        return {first, static_cast<std::size_t>(std::ceil(rectangle.maxY() / 20)) - first - unseen};
    }
    Rect visibleRect() const override { return {0, top, 300, 200}; }
    double insetHeight() const override { return 3; }
    Size sizeOf(std::string_view label) const override { return {digitWidth * double(label.size()), 12}; }

    double digitWidth = 7, top = 0, notLaidOut = -1;
    std::size_t unseen = 0; // characters at the end of the last row
    mutable int asked = 0;
};

LineIndices linesOf(std::size_t count) {
    return LineIndices{std::u16string(count - 1, u'\n')};
}

const auto never = [](std::size_t /*line*/) { return false; };

TEST(GutterLayout, isWideEnoughForTheLastNumber) {
    FakeTextLayout text;
    // Lines, width of a digit (the last one is rounded to a float first), thickness.
    const std::vector<std::tuple<std::size_t, double, double>> rows{
        {9, 7, 22},   {10, 7, 24},   {99, 7, 24},   {100, 7, 31},
        {999, 7, 31}, {1000, 7, 38}, {9, 12.1, 23}, {9, 12.0000001, 22}};
    for (const auto& [count, digitWidth, thickness] : rows) {
        text.digitWidth = digitWidth;
        EXPECT_EQ((GutterLayout{text, linesOf(count)}.requiredThickness()), thickness) << count;
    }
}

TEST(GutterLayout, findsTheLineAtAHeightWithoutTheInset) {
    FakeTextLayout text;
    text.notLaidOut = 140;
    const LineIndices lines = linesOf(10);
    // Any rectangle of a line counts, and a float makes 120 of the last height.
    const std::vector<std::tuple<double, float, std::uint64_t>> rows{{100, 19.9F, 6},
                                                                     {100, 20, 7},
                                                                     {100, 45, GutterLayout::notFound},
                                                                     {100, -1100, 1},
                                                                     {119.999'999'9, 0, 7}};
    for (const auto& [top, location, line] : rows) {
        text.top = top;
        EXPECT_EQ((GutterLayout{text, lines}.lineNumberForLocation(location)), line) << location;
    }
    EXPECT_EQ(GutterLayout::notFound, 9'223'372'036'854'775'807U);
}

TEST(GutterLayout, placesNumbersAndMarkersBesideTheFirstRows) {
    FakeTextLayout text;
    text.top = 1970;
    text.notLaidOut = 2000;
    const LineIndices lines = linesOf(103);
    const auto labels = GutterLayout{text, lines}.labels(40, [](std::size_t line) { return line == 99; });
    // Line 98 is half scrolled out and line 100 has no layout; the text ends with line 102.
    ASSERT_EQ(labels.size(), 4U);
    EXPECT_EQ(labels[0], (GutterLabel{98, "99", {40 - 14 - 5, -7 + 4, 30, 20}, -7, 20, false}));
    EXPECT_EQ(labels[1], (GutterLabel{99, "100", {40 - 21 - 5, 13 + 4, 30, 20}, 13, 20, true}));
    EXPECT_EQ(labels[2].text + labels[3].text, "102103");
    EXPECT_EQ(GutterLayout::markerPosition(labels[1], 40, {38, 13}, 6.5), (Point{1, 13 + 10 - 6.5}));
}

TEST(GutterLayout, labelsVisibleLinesOnlyAndTheOneRightBehind) {
    FakeTextLayout text;
    const LineIndices lines = linesOf(100'000);
    EXPECT_EQ((GutterLayout{text, lines}.labels(40, never)).size(), 11U) << "ten rows fit";
    text.unseen = 1;
    EXPECT_EQ((GutterLayout{text, lines}.labels(40, never)).size(), 10U);
    for (text.top = 0; text.top < 100'000 * 20.0 - 200; text.top += 1234) {
        text.asked = 0;
        ASSERT_GE((GutterLayout{text, lines}.labels(60, never)).size(), 10U);
        ASSERT_LE(text.asked, 12);
    }
    text.top = 20;
    const LineIndices wrapped{std::u16string(9, u'x') + u"\ny"};
    EXPECT_EQ((GutterLayout{text, wrapped}.labels(40, never)).size(), 1U) << "the first row is scrolled out";
}

} // namespace
} // namespace tessaly
