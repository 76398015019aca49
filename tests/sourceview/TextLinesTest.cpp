// The lines of a text and their numbers in the gutter.

#include "foundation/TextEdit.h"
#include "sourceview/GutterLayout.h"
#include "sourceview/LineIndices.h"
#include "sourceview/LongLineWatch.h"
#include "sourceview/TextLayout.h"

#include <gtest/gtest.h>
#include <random>

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
        EXPECT_EQ(lines.lineNumberForCharacterIndex(text.size() + 3), starts.size() - 1);
    }
}

/// Every character in a row of its own, 20 points high, seen from the middle of row 98 on.
struct FakeTextLayout : TextLayout {
    std::optional<Rect> rectangleOfRowAt(std::size_t offset) const override {
        return offset == 100 ? std::nullopt : std::optional{Rect{0, 20.0 * double(offset), 1, 20}};
    }
    TextRange charactersIn(const Rect& rectangle) const override {
        return {std::size_t(rectangle.y / 20), 10};
    }
    Rect visibleRect() const override { return {0, 1970, 300, 200}; }
};

Size sizeOf(const std::string& label) {
    return {7.25 * double(label.size()), 12};
}

LineIndices emptyLines(std::size_t count) {
    return LineIndices{std::u16string(count - 1, u'\n')};
}

TEST(Gutter, placesNumbersAndMarkersBesideTheFirstRows) {
    using Row = std::pair<std::size_t, double>;
    for (const auto& [count, thickness] : {Row{9, 22}, {10, 25}, {99, 25}, {100, 32}, {1000, 39}}) {
        EXPECT_EQ(gutter::requiredThickness(emptyLines(count), sizeOf), thickness) << count;
    }
    const auto shown = gutter::labels(FakeTextLayout{}, emptyLines(103), 40, sizeOf);
    // Line 98 is half scrolled out and line 100 has no layout; the text ends with line 102.
    ASSERT_EQ(shown.size(), 4U);
    EXPECT_EQ(shown[0], (GutterLabel{98, "99", {40 - 14.5 - 5, -10 + 4, 30, 20}, -10, 20}));
    EXPECT_EQ(shown[1], (GutterLabel{99, "100", {40 - 21.75 - 5, 10 + 4, 30, 20}, 10, 20}));
    EXPECT_EQ(shown[2].text + shown[3].text, "102103");
    EXPECT_EQ(gutter::markerRect(shown[1], 40, {38, 13}), (Rect{1, 10 + 10 - 6.5, 38, 13}));
}

TEST(TextEdit, isNoMoreThanDiffersAndNeverCutsASurrogatePair) {
    EXPECT_EQ(TextEdit::between(u"aaa", u"a"), (TextEdit{1, 2, 0}));
    EXPECT_EQ(TextEdit::between(u"x\U0001F308y", u"x\U0001F302y"), (TextEdit{1, 2, 2}));
    EXPECT_EQ(TextEdit::between(u"x\U0001F308y", u"x\U0001D308y"), (TextEdit{1, 2, 2}));
}

TEST(TextEdit, mapsPlacesAndJoinsWithTheNext) {
    const TextEdit edit{3, 4, 2};
    for (const auto& [before, after] :
         {std::pair<std::size_t, std::size_t>{0, 0}, {3, 3}, {4, 4}, {6, 5}, {7, 5}, {10, 8}}) {
        EXPECT_EQ(edit.mapped(before), after) << before;
    }
    EXPECT_EQ((TextEdit{2, 3, 1}.followedBy({1, 1, 4})), (TextEdit{1, 4, 5}));
    EXPECT_EQ((TextEdit{2, 3, 1}.followedBy({5, 2, 0})), (TextEdit{2, 7, 3}));
}

TEST(TextEdit, isCutToTheTextOrTheWholeOfItWhereAReportCannotBe) {
    struct Row {
        TextEdit report;
        std::size_t before;
        std::size_t after;
        TextEdit taken;
    };
    for (const auto& [report, before, after, taken] : {Row{{2, 5, 4}, 10, 9, {2, 5, 4}},
                                                       {{8, 5, 6}, 10, 11, {8, 2, 3}},
                                                       {{0, 1, 1}, 10, 12, {0, 10, 12}},
                                                       {{12, 0, 0}, 10, 11, {0, 10, 11}}}) {
        EXPECT_EQ(TextEdit::reported(report, before, after), taken) << before << ' ' << after;
    }
}

TEST(LongLineWatch, knowsWhetherALineIsTooLongThroughRandomEdits) {
    std::mt19937 random{1};
    const auto upTo = [&](std::size_t most) {
        return std::uniform_int_distribution<std::size_t>{0, most}(random);
    };
    std::u16string text;
    LongLineWatch watch;
    int changes = 0;
    for (int i = 0; i < 3'000; ++i) {
        const std::size_t position = upTo(text.size()), removed = upTo(1) * upTo(text.size() - position);
        const std::u16string kinds[] = {u"\n", u"a\n", u"\na", std::u16string(5'000, u'a')};
        const std::u16string& added = kinds[upTo(3)];
        text.replace(position, removed, added);
        const bool before = watch.hasLongLine();
        watch.textEdited(text, {position, removed, added.size()});
        ASSERT_EQ(watch.hasLongLine(), LongLineWatch::hasTooLongLine(text)) << "edit " << i;
        changes += watch.hasLongLine() != before ? 1 : 0;
    }
    EXPECT_GT(changes, 100) << "lines must become too long and cease to be";
    for (const std::size_t units : {10'000U, 10'001U}) {
        LongLineWatch fresh;
        fresh.textEdited(u'\n' + std::u16string(units, u'a') + u"\nb", {units, 0, 1}); // its last letter
        EXPECT_EQ(fresh.hasLongLine(), units > 10'000) << units;
    }
}

} // namespace
} // namespace tessaly
