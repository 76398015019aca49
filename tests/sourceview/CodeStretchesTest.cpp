// What is coloured in code, and in which colours.

#include "sourceview/CodeStretches.h"
#include "foundation/Contrast.h"
#include "sourceview/CodeColors.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace tessaly {
namespace {

/// A letter for each unit: n(ame), p(roperty), v(alue), c(omment); a blank where no stretch lies.
std::string rolesIn(CodeLanguage language, std::u16string_view text, TextRange part) {
    std::string roles(part.length, ' ');
    std::size_t end = 0;
    for (const auto& [range, role] : codeStretches(language, text, part)) {
        EXPECT_TRUE(range.location >= end && range.length > 0 && range.end() <= part.end());
        end = range.end();
        const std::size_t from = std::max(range.location, part.location) - part.location;
        roles.replace(from, end - part.location - from, end - part.location - from,
                      "npvc"[std::size_t(role)]);
    }
    return roles;
}

TEST(CodeStretches, tellWhatIsWhat) {
    using enum CodeLanguage;
    struct Row {
        CodeLanguage language;
        std::u16string code;
        std::string roles;
    };
    const std::vector<Row> rows{
        {Css, u".a:hover{b:c;d-e : f(0, 1) ; }", "nnnnnnnn p v pppp  vvvvvvvv   "},
        {Css, u"a,\nb /*{*/ {/*}*/c/*:*/:/*;*/d}", "nnnnnccccc  cccccpccccc cccccv "},
        {Css, u"@media x{a b{c:d}}@import 'y;';e{}", "nnnnnnnn nnn p v  nnnnnnnnnnnn n  "},
        {Css, u"a{b:\"}\\\";/*\";c:'\n;d}e", "n p vvvvvvvv p vv p n"},
        {Css, u"#000 0%,\n#fff 9%);a:b;c d", "vvvvvvvvvvvvvvvvv p v nnn"},
        {Css, u":;}{;::/*", "      vcc"},
        {Html, u"<!DOCTYPE a><b c=\"d>\" e=/f/ g />h<!--<i>--></b>",
         "nnnnnnnnn pnnn p vvvv p vvv p nn ccccccccccnnnn"},
        {Html, u"1 < 2 > 3 <a b = c\n'd\ne' f><", "          nn p   v vvvvv pn "},
        {Html, u"<a b=><c =\"d", "nn p nnn  vv"},
    };
    for (const auto& [language, code, roles] : rows) {
        EXPECT_EQ(rolesIn(language, code, {0, code.size()}), roles) << roles;
    }
}

TEST(CodeStretches, areTheSameHoweverMuchIsLookedAt) {
    std::u16string rules;
    while (rules.size() < 4'000) {
        rules += u"a, /* b\n{ */ c {\n\td: e(f,\n\t\t#000 0%,\n\t\t#fff 9%);\n}\n";
    }
    const std::string roles = rolesIn(CodeLanguage::Css, rules, {0, rules.size()});
    for (std::size_t start = 0; start < rules.size(); start = rules.find(u'\n', start) + 1) {
        const std::string part = roles.substr(start, 40);
        EXPECT_EQ(rolesIn(CodeLanguage::Css, rules, {start, part.size()}), part) << start;
    }
    // Far from the start of a text nothing before is known but what is near.
    for (const auto& [before, role] : {std::pair{u"a{}\n", 'p'}, {u"c: d;\n", 'p'}, {u"#000 9%,\n", 'v'}}) {
        std::u16string text;
        while (text.size() < 40'000) {
            text += before;
        }
        const std::size_t start = text.size();
        text += u"x /**/\n;}";
        EXPECT_EQ(rolesIn(CodeLanguage::Css, text, {start, 6}), std::string(2, role) + "cccc");
    }
    const std::u16string comment = u"<!-- \n" + std::u16string(9'000, u'\n');
    for (const auto& [behind, shown] : {std::pair{u"<i --><i>", "cc"}, {u"<i --<!-- -->", "nn"}}) {
        EXPECT_EQ(rolesIn(CodeLanguage::Html, comment + behind, {comment.size(), 2}), shown);
    }
}

TEST(CodeColors, canBeReadInEveryPalette) {
    constexpr RGBAComponents black{0, 0, 0};
    constexpr RGBAComponents white{1, 1, 1};
    EXPECT_DOUBLE_EQ(contrastBetween(black, white), 21);
    EXPECT_NEAR(contrastBetween(rgbOfBytes(0x77, 0x77, 0x77), white), 4.478, 0.001);
    EXPECT_NEAR(contrastBetween(rgbOfBytes(10, 10, 10), black), 1.06, 0.01) << "the curve is a line";
    EXPECT_EQ(codeColor::ofLineNumber(black, white), (RGBAComponents{0.42, 0.42, 0.42}));
    for (const auto& [text, background] :
         {std::pair{black, white}, {white, black}, {white, rgbOfBytes(64, 0, 64)}}) {
        std::set<double> reds;
        for (int role = 0; role < 4; ++role) {
            const RGBAComponents color = codeColor::ofRole(CodeRole(role), text, background);
            EXPECT_GE(contrastBetween(color, background), 4.5) << role;
            EXPECT_LT(contrastBetween(color, background), contrastBetween(text, background) - 2) << "quietly";
            reds.insert(color.red);
        }
        EXPECT_EQ(reds.size(), 4U) << "each in its own";
    }
}

} // namespace
} // namespace tessaly
