// The lines of a text and their numbers in the gutter.

#include "foundation/TextEdit.h"
#include "sourceview/GutterLayout.h"
#include "sourceview/TextLayout.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(LineIndices, knowsSixTerminatorsAndTheEmptyLastLine) {
    const std::vector<std::pair<std::u16string, std::vector<std::uint32_t>>> rows{
        {u"", {0}},
        {u"a\n\rb\r\nc\r\r\n", {0, 2, 3, 6, 8, 10}}, // LF CR is no pair
        {u"a\u0085b\u2028c\u2029d", {0, 2, 4, 6}},
        {u"\v\f\u2027\u202a\u0084\u0185", {0}}, // look like terminators, are none
        {u"\U0001F308\n\u05D0\n", {0, 3, 5}}};  // a surrogate pair counts two
    for (const auto& [text, starts] : rows) {
        const LineIndices lines{text};
        EXPECT_EQ(lines.starts(), starts);
        for (std::size_t index = 0; index < text.size() + 3; ++index) {
            const auto next = std::upper_bound(starts.begin(), starts.end(), index);
            EXPECT_EQ(lines.lineNumberForCharacterIndex(index), next - starts.begin() - 1);
        }
    }
}

/// Every character in a row of its own, 20 points high, shown ten at a time from `top` on.
struct FakeTextLayout : TextLayout {
    std::vector<Rect> rectanglesOfEmptyRange(std::size_t offset) const override {
        ++asked;
        return offset == 100 ? std::vector<Rect>{} : std::vector<Rect>{{0, 20.0 * double(offset), 1, 20}};
    }
    TextRange charactersIn(const Rect& rectangle) const override {
        return {std::size_t(rectangle.y / 20), 10};
    }
    Rect visibleRect() const override { return {0, top, 300, 200}; }
    double insetHeight() const override { return 3; }
    Size sizeOf(std::string_view label) const override { return {7.25 * double(label.size()), 12}; }

    double top = 0;
    mutable int asked = 0;
};

class GutterLayoutTest : public testing::Test {
  protected:
    void setLines(std::size_t count) { lines = LineIndices{std::u16string(count - 1, u'\n')}; }
    std::vector<GutterLabel> labels() const {
        return gutter.labels(40, [](std::size_t line) { return line == 99; });
    }

    FakeTextLayout text;
    LineIndices lines;
    const GutterLayout gutter{text, lines};
};

TEST_F(GutterLayoutTest, isWideEnoughForTheLastNumber) {
    using Row = std::pair<std::size_t, double>;
    for (const auto& [count, thickness] : {Row{9, 22}, {10, 25}, {99, 25}, {100, 32}, {1000, 39}}) {
        setLines(count);
        EXPECT_EQ(gutter.requiredThickness(), thickness) << count;
    }
}

TEST_F(GutterLayoutTest, placesNumbersAndMarkersBesideTheFirstRows) {
    setLines(103);
    text.top = 1970;
    const auto shown = labels();
    // Line 98 is half scrolled out and line 100 has no layout; the text ends with line 102.
    ASSERT_EQ(shown.size(), 4U);
    EXPECT_EQ(shown[0], (GutterLabel{98, "99", {40 - 14.5 - 5, -7 + 4, 30, 20}, -7, 20, false}));
    EXPECT_EQ(shown[1], (GutterLabel{99, "100", {40 - 21.75 - 5, 13 + 4, 30, 20}, 13, 20, true}));
    EXPECT_EQ(shown[2].text + shown[3].text, "102103");
    EXPECT_EQ(GutterLayout::markerRect(shown[1], 40, {38, 13}), (Rect{1, 13 + 10 - 6.5, 38, 13}));
}

TEST_F(GutterLayoutTest, labelsVisibleLinesOnlyAndTheOneRightBehind) {
    setLines(100'000);
    for (text.top = 2400; text.top < 100'000 * 20.0 - 200; text.top += 1240) {
        text.asked = 0;
        ASSERT_EQ(labels().size(), 11U) << "ten rows fit";
        ASSERT_EQ(text.asked, 11);
    }
    text.top = 20;
    lines = LineIndices{std::u16string(9, u'x') + u"\ny"};
    EXPECT_EQ(labels().size(), 1U) << "the first row is scrolled out";
}

TEST(TextEdit, isNoMoreThanDiffersAndNeverCutsASurrogatePair) {
    EXPECT_EQ(TextEdit::between(u"aaa", u"a"), (TextEdit{1, 2, 0}));
    EXPECT_EQ(TextEdit::between(u"x\U0001F308y", u"x\U0001F302y"), (TextEdit{1, 2, 2}));
    EXPECT_EQ(TextEdit::between(u"x\U0001F308y", u"x\U0001D308y"), (TextEdit{1, 2, 2}));
}

} // namespace
} // namespace tessaly
