#include "sourceview/TextMirror.h"
#include "sourceview/LongLineWatch.h"

#include <gtest/gtest.h>
#include <random>

namespace tessaly {
namespace {

TEST(TextEdit, isWhatReallyDiffers) {
    struct Row {
        std::u16string before, after;
        TextEdit edit;
    };
    const std::u16string rainbow = u"\U0001F308";
    const std::u16string umbrella = u"\U0001F302"; // the same high surrogate
    const std::u16string clef = u"\U0001D308";     // the same low surrogate
    const std::vector<Row> rows{
        {u"", u"", {}},
        {u"same", u"same", {}},
        {u"#000 0%", u"#00ff00 0%", {3, 0, 3}},
        {u"aa", u"aaa", {2, 0, 1}},
        {u"aaa", u"a", {1, 2, 0}},
        {u"", u"new", {0, 0, 3}},
        {u"x" + rainbow + u"y", u"x" + umbrella + u"y", {1, 2, 2}},
        {u"x" + rainbow + u"y", u"x" + clef + u"y", {1, 2, 2}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(TextEdit::between(row.before, row.after), row.edit);
    }
    const TextEdit edit{10, 5, 2};
    const std::vector<std::pair<std::size_t, std::size_t>> places{{9, 9},   {10, 10}, {11, 11}, {13, 12},
                                                                  {14, 12}, {15, 12}, {20, 17}};
    for (const auto& [before, after] : places) {
        EXPECT_EQ(edit.mapped(before), after);
    }
}

TEST(TextEdit, isKeptWithinTheTextByAReport) {
    struct Row {
        TextEdit report;
        std::size_t before, after;
        TextEdit edit;
    };
    const std::vector<Row> rows{
        {{2, 1, 3}, 10, 12, {2, 1, 3}},
        {{0, 11, 6}, 10, 5, {0, 10, 5}}, // both with the separator at the end
        {{4, 7, 1}, 10, 4, {4, 6, 0}},
        {{9, 2, 4}, 10, 12, {9, 1, 3}},
        {{3, 1, 1}, 10, 12, {0, 10, 12}}, // contradicts the lengths
        {{30, 1, 1}, 10, 10, {10, 0, 0}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(TextEdit::reported(row.report, row.before, row.after), row.edit);
    }
}

TEST(LongLineWatch, looksFarEnoughBackAndAhead) {
    for (const std::size_t position : {0U, 5'000U, 10'000U}) {
        const std::u16string text = u"\n" + std::u16string(10'001, u'x') + u"\n";
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
        const std::size_t size = text.text().size();
        const std::size_t position = random() % (size + 1);
        const std::size_t removed = i % 3 == 0 ? random() % (size - position + 1) / 2 : 0;
        std::u16string added(random() % 6000, u'x');
        if (i % 2 != 0) {
            added.insert(random() % (added.size() + 1), 1, u'\n');
        }
        const bool before = watch.hasLongLine();
        const TextEdit edit = text.replace(position, removed, added);
        watch.textEdited(text.text(), edit);
        std::size_t longest = 0;
        for (std::size_t start = 0; start <= text.text().size();) {
            const std::size_t end = std::min(text.text().find(u'\n', start), text.text().size());
            longest = std::max(longest, end - start);
            start = end + 1;
        }
        ASSERT_EQ(watch.hasLongLine(), longest > 10'000) << "edit " << i << ", longest " << longest;
        changes += before != watch.hasLongLine() ? 1 : 0;
    }
    EXPECT_GT(changes, 20);
}

} // namespace
} // namespace tessaly
