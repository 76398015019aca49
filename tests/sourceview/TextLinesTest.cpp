#include "sourceview/LineIndices.h"
#include "sourceview/LongLineWatch.h"
#include "sourceview/TextMirror.h"

#include <algorithm>
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
        for (std::size_t index = 0; index < text.size() + 3; ++index) {
            const auto next = std::upper_bound(starts.begin(), starts.end(), index);
            EXPECT_EQ(lines.lineNumberForCharacterIndex(index), next - starts.begin() - 1);
        }
    }
    EXPECT_EQ(LineIndices{}.lineNumberForCharacterIndex(7) + LineIndices{}.count(), 0U);
}

TEST(TextEdit, isWhatReallyDiffers) {
    const std::u16string rainbow = u"x\U0001F308y";
    const std::u16string umbrella = u"x\U0001F302y"; // the same high surrogate
    const std::u16string clef = u"x\U0001D308y";     // the same low surrogate
    const std::vector<std::tuple<std::u16string, std::u16string, TextEdit>> rows{
        {u"same", u"same", {}},   {u"#000 0%", u"#00ff00 0%", {3, 0, 3}}, {u"aaa", u"a", {1, 2, 0}},
        {u"", u"new", {0, 0, 3}}, {rainbow, umbrella, {1, 2, 2}},         {rainbow, clef, {1, 2, 2}}};
    for (const auto& [before, after, edit] : rows) {
        EXPECT_EQ(TextEdit::between(before, after), edit);
    }
    const std::vector<std::pair<std::size_t, std::size_t>> places{{9, 9},   {10, 10}, {11, 11}, {13, 12},
                                                                  {14, 12}, {15, 12}, {20, 17}};
    for (const auto& [before, after] : places) {
        EXPECT_EQ((TextEdit{10, 5, 2}.mapped(before)), after);
    }
    const TextEdit withSeparator{0, 11, 6};
    EXPECT_EQ(TextEdit::reported(withSeparator, 10, 5), (TextEdit{0, 10, 5}));
    const TextEdit contradictory{3, 1, 1};
    EXPECT_EQ(TextEdit::reported(contradictory, 10, 12), (TextEdit{0, 10, 12}));
}

TEST(LongLineWatch, looksFarEnoughBackAndAhead) {
    const std::u16string text = u"\n" + std::u16string(10'001, u'x') + u"\n";
    for (const std::size_t position : {0U, 5'000U, 10'000U}) {
        LongLineWatch watch;
        watch.textEdited(std::u16string_view{text}.substr(1, 10'000), {position, 0, 0});
        EXPECT_FALSE(watch.hasLongLine());
        watch.textEdited(text, {position + 1, 0, 1});
        EXPECT_TRUE(watch.hasLongLine()) << position;
    }
}

TEST(LongLineWatch, knowsAfterEveryEditWhetherALineIsTooLong) {
    std::mt19937 random{5};
    TextMirror text;
    LongLineWatch watch;
    int changes = 0;
    for (int i = 0; i < 1500; ++i) {
        const std::size_t position = random() % (text.text().size() + 1);
        const std::size_t behind = text.text().size() - position;
        std::u16string added(random() % 6000, u'x');
        if (i % 2 != 0) {
            added.insert(random() % (added.size() + 1), 1, u'\n');
        }
        const bool before = watch.hasLongLine();
        const TextEdit edit = text.replace(position, i % 3 == 0 ? random() % (behind + 1) / 2 : 0, added);
        watch.textEdited(text.text(), edit);
        bool expected = false;
        for (std::size_t start = 0, end = 0; start <= text.text().size(); start = end + 1) {
            end = std::min(text.text().find(u'\n', start), text.text().size());
            expected = expected || end - start > 10'000;
        }
        ASSERT_EQ(watch.hasLongLine(), expected) << "edit " << i;
        changes += before != expected ? 1 : 0;
    }
    EXPECT_GT(changes, 20);
}

} // namespace
} // namespace tessaly
