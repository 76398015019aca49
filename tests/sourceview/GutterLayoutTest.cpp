#include "sourceview/GutterLayout.h"

#include "sourceview/TextLayout.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

/// Lines of ten characters with their terminator, each in rows 20 points high, shown from `top` on.
class FakeTextLayout : public TextLayout {
  public:
    std::vector<Rect> rectanglesOfEmptyRange(std::size_t offset) const override {
        ++asked;
        const std::size_t line = offset / 10;
        if (line == notLaidOut) {
            return {};
        }
        return {{0, static_cast<double>(line) * rowHeight, 1, rowHeight}, {0, -1000, 1, 1}};
    }
    CharacterRange charactersIn(const Rect& rectangle) const override {
        const auto row = [](double y) { return static_cast<std::size_t>(y / rowHeight); };
        const std::size_t first = row(rectangle.y) * 10;
        return {first, row(rectangle.maxY() - 0.1) * 10 + 10 - first - unseen};
    }
    Rect visibleRect() const override { return {0, top, 300, 200}; }
    double insetHeight() const override { return inset; }
    Size sizeOf(std::string_view label) const override {
        return {static_cast<double>(label.size()) * digitWidth, 12};
    }

    static constexpr double rowHeight = 20;
    double digitWidth = 7;
    double top = 0;
    double inset = 0;
    std::size_t notLaidOut = 1'000'000;
    std::size_t unseen = 0; // characters at the end of the last row
    mutable int asked = 0;
};

LineIndices linesOf(std::size_t count) {
    std::u16string text;
    for (std::size_t i = 1; i < count; ++i) {
        text += u"012345678\n";
    }
    return LineIndices{text};
}

const auto never = [](std::size_t /*line*/) { return false; };

TEST(GutterLayout, isWideEnoughForTheLastNumber) {
    struct Row {
        std::size_t lines;
        double digitWidth, thickness;
    };
    const std::vector<Row> rows{{1, 7, 22},   {9, 7, 22},    {10, 7, 24},        {99, 7, 24},
                                {100, 7, 31}, {999, 7, 31},  {1000, 7, 38},      {9, 13.25, 24},
                                {9, 12, 22},  {9, 12.1, 23}, {9, 12.0000001, 22}}; // rounded to a float first
    for (const Row& row : rows) {
        FakeTextLayout text;
        text.digitWidth = row.digitWidth;
        EXPECT_EQ((GutterLayout{text, linesOf(row.lines)}.requiredThickness()), row.thickness)
            << row.lines << " lines, digits " << row.digitWidth << " wide";
    }
    EXPECT_EQ((GutterLayout{FakeTextLayout{}, LineIndices{}}.requiredThickness()), 22);
}

TEST(GutterLayout, findsTheLineAtAHeightWithoutTheInset) {
    FakeTextLayout text;
    text.top = 100;
    text.inset = 8;
    text.notLaidOut = 7;
    const LineIndices lines = linesOf(10);
    const GutterLayout gutter{text, lines};
    EXPECT_EQ(gutter.lineNumberForLocation(19.9F), 6U) << "the inset would make it the fifth";
    EXPECT_EQ(gutter.lineNumberForLocation(20.0F), 7U);
    EXPECT_EQ(gutter.lineNumberForLocation(45.0F), 9'223'372'036'854'775'807U) << "not laid out";
    EXPECT_EQ(gutter.lineNumberForLocation(-1100.0F), 1U) << "any rectangle of a line counts";
    text.top = 119.999'999'9; // a float makes 120 of it
    EXPECT_EQ(gutter.lineNumberForLocation(0.0F), 7U);
    EXPECT_EQ((GutterLayout{text, LineIndices{}}.lineNumberForLocation(0.0F)), GutterLayout::notFound);
}

TEST(GutterLayout, placesNumbersAndMarkersBesideTheFirstRows) {
    FakeTextLayout text;
    text.top = 1970;
    text.inset = 3;
    text.notLaidOut = 100;
    const LineIndices lines = linesOf(103);
    const GutterLayout gutter{text, lines};
    const auto labels = gutter.labels(40, [](std::size_t line) { return line == 99; });
    // Line 98 is half scrolled out and line 100 has no layout; the text ends with line 102.
    ASSERT_EQ(labels.size(), 4U);
    EXPECT_EQ(labels[0], (GutterLabel{98, "99", {40 - 14 - 5, -7 + 4, 30, 20}, -7, 20, false}));
    EXPECT_EQ(labels[1], (GutterLabel{99, "100", {40 - 21 - 5, 13 + 4, 30, 20}, 13, 20, true}));
    EXPECT_EQ(labels[2].text + labels[3].text, "102103");
    EXPECT_EQ(GutterLayout::markerPosition(labels[1], 40, {38, 13}, 6.5), (Point{1, 13 + 10 - 6.5}));
}

TEST(GutterLayout, countsALineRightBehindTheVisibleOnesAndOneInTheMiddleOfALine) {
    FakeTextLayout text;
    const LineIndices lines = linesOf(100);
    const auto labels = GutterLayout{text, lines}.labels(40, never);
    ASSERT_EQ(labels.size(), 11U) << "ten rows fit";
    EXPECT_EQ(labels.back().text, "11");
    text.unseen = 1;
    EXPECT_EQ((GutterLayout{text, lines}.labels(40, never)).size(), 10U);

    // One line in rows below one another: only its start has a label.
    const LineIndices wrapped{std::u16string(55, u'x') + u"\ny"};
    text.top = 20;
    EXPECT_EQ((GutterLayout{text, wrapped}.labels(40, never)).size(), 1U) << "the first row is scrolled out";
}

TEST(GutterLayout, asksForVisibleLinesOnly) {
    FakeTextLayout text;
    const LineIndices lines = linesOf(100'000);
    const GutterLayout gutter{text, lines};
    for (text.top = 0; text.top < 100'000 * 20.0 - 200; text.top += 1234) {
        text.asked = 0;
        const std::size_t drawn = gutter.labels(60, never).size();
        ASSERT_GE(drawn, 10U);
        ASSERT_LE(text.asked, 12);
    }
}

} // namespace
} // namespace tessaly
