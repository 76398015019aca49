#include "sourceview/LineIndices.h"

#include <gtest/gtest.h>
#include <string>

namespace tessaly {
namespace {

using Starts = std::vector<std::uint32_t>;

TEST(LineIndices, knowsSixTerminatorsAndTheEmptyLastLine) {
    struct Row {
        std::u16string text;
        Starts starts;
    };
    const std::vector<Row> rows{
        {u"", {0}},
        {u"a", {0}},
        {u"a\n", {0, 2}},
        {u"a\nb", {0, 2}},
        {u"a\r\nb\r\n", {0, 3, 6}},
        {u"\n\r", {0, 1, 2}}, // not a pair in this order
        {u"\r\r\n\n", {0, 1, 3, 4}},
        {u"a\u0085b\u2028c\u2029d\re\nf", {0, 2, 4, 6, 8, 10}},
        {u"\v\f\u2027\u202a\u0084\u0185", {0}}, // look like terminators, are none
        {u"\U0001F308\n\u05D0\n", {0, 3, 5}},   // a surrogate pair counts two
    };
    for (const Row& row : rows) {
        EXPECT_EQ(LineIndices{row.text}.starts(), row.starts);
    }
}

TEST(LineIndices, findsTheLineOfACharacter) {
    const LineIndices lines{u"aaaa\nbbb\nc"};
    ASSERT_EQ(lines.starts(), (Starts{0, 5, 9}));
    const std::vector<std::pair<std::size_t, std::size_t>> rows{{0, 0}, {4, 0}, {5, 1},
                                                                {8, 1}, {9, 2}, {100, 2}};
    for (const auto& [index, line] : rows) {
        EXPECT_EQ(lines.lineNumberForCharacterIndex(index), line) << index;
    }
    EXPECT_EQ(LineIndices{}.lineNumberForCharacterIndex(7), 0U);
    EXPECT_EQ(LineIndices{}.count(), 0U);
}

} // namespace
} // namespace tessaly
