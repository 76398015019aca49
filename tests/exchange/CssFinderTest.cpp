#include "exchange/CssReader.h"
#include "support/ReadGradients.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

constexpr std::string_view ab = "linear-gradient(90deg, #aaa, #bbb)";
constexpr std::string_view cd = "linear-gradient(90deg, #ccc, #ddd)";
constexpr std::string_view foundAb = "1 #aaaaaa 0, #bbbbbb 100";
constexpr std::string_view foundCd = "1 #cccccc 0, #dddddd 100";

// With AB and CD for the gradients above.
std::string filledIn(std::string text, std::string_view forAb, std::string_view forCd) {
    for (const auto& [name, value] : {std::pair{std::string_view{"AB"}, forAb}, {"CD", forCd}}) {
        for (auto place = text.find(name); place != text.npos;
             place = text.find(name, place + value.size())) {
            text.replace(place, name.size(), value);
        }
    }
    return text;
}

void expectAll(std::initializer_list<std::pair<std::string_view, std::string_view>> rows) {
    for (const auto& [text, expected] : rows) {
        EXPECT_EQ(described(readCssGradients(filledIn(std::string{text}, ab, cd))),
                  filledIn(std::string{expected}, foundAb, foundCd))
            << text;
    }
}

TEST(CssFinder, findsWhatIsInAStylesheet) {
    expectAll({
        {"AB", "AB"},
        {" AB; CD ;", "AB\nCD"},
        {"color: red; background: url(a;b) AB no-repeat; mask: CD", "AB\nCD"},
        {"@import 'x'; @charset \"y\"; a { background: AB }", "a: AB"},
        {".a  >\n b /* AB */ , i { background: AB; } p{background-image:CD}", ".a > b , i: AB\np: CD"},
        {"@media (min-width: 1px) { @supports (background: CD) { .a { background: AB } } .b {background:CD}}",
         ".a: AB\n.b: CD"},
        {".a { color: red; &:hover { background: AB } @media print { background: CD } }",
         "&:hover: AB\n.a: CD"},
        {".a { b:hover { background: AB } background: CD; }", "b:hover: AB\n.a: CD"},
        {":root { --x: AB; --y: { background: CD }; --X: CD }", "--x: AB\n--y: CD\n--X: CD"},
        {"a { background: AB; } /* b { background: CD; } */ c { content: 'CD' } d { background: url(CD) }",
         "a: AB"},
        {"a { background: conic-gradient(red, blue), AB, CD }", "a: AB (2 more gradients left out)"},
        {"a { background: linear-gradient(var(--x), red), image-set(AB 1x) }",
         "a: AB (1 more gradient left out)"},
        {"a { background: linear-gradient(rubbish, red), AB }", ""},
        {"a { background: lin\\65 ar-gradient(90deg, #aaa, #bbb) ! important }", "a: AB"},
        {"a { background: AB; border-image: CD }", "a: AB\na: CD"},
        {"a { background: CD; background-image: AB; background: linear-gradient(rubbish) }", "a: AB"},
        {"a { background: -webkit-linear-gradient(left, red, blue); background: AB; background: #aaa;"
         " background: -moz-linear-gradient(left, red, blue); filter: "
         "progid:D.M.gradient(startColorstr='red',"
         " endColorstr='red') }",
         "a: AB"},
        {"a { filter: progid:D.M.gradient(startColorstr='red', endColorstr='red');"
         " background: -o-linear-gradient(left, #aaa, #bbb) }",
         "a: AB"},
        {"a { -ms-filter: \"progid:D.M.gradient(startColorstr='#aaa', endColorstr='#bbb', GradientType=1)\" "
         "}",
         "a: AB"},
        {"a { -webkit-border-image: -webkit-linear-gradient(left, red, blue); border-image-source: AB }",
         "a: AB"},
        {"} a { background: AB } }} b { background: CD", "a: AB\nb: CD"},
        {"a { background AB; color: red; background: CD }", "a: CD"},
        {"a { background: linear-gradient(#aaa, (#bbb; } b { background: CD }", ""},
        {"a { content: 'open\n; background: AB }", "a: AB"},
        {"a { background: linear-gradient(90deg, #aaa, #bbb", "a: AB"},
        {"a{} /* background: AB", ""},
    });
}

TEST(CssFinder, putsInWhatATextDefines) {
    expectAll({
        {"a { background: linear-gradient(90deg, currentColor, #bbb); color: #aaa !important; color: red }",
         "a: AB"},
        {"color: #aaa; background: linear-gradient(90deg, currentcolor, #bbb)", "AB"},
        {"a { color: #aaa } b { background: linear-gradient(currentcolor, #bbb) }", ""},
        {"<p style='background: linear-gradient(90deg, currentColor, #bbb); color: #aaa'>", "AB"},
        {"a { background: linear-gradient(calc(2 * VAR(--w)), var(--a), var(--n, var(--m, #bbb))) }"
         "/* all */ b, :root { --w: 45deg; --a: var(--c); --c: #aaa } i { --c: red }"
         "@media print { :root { --a: red !important } }",
         "a: AB"},
        {":root { --a: red; --d: var(--d) } a { background: linear-gradient(90deg,var(--a),var(--b)); --a: "
         "#aaa;"
         " --b: #bbb } b { background: linear-gradient(var(--c), var(--d)) }",
         "a: AB"},
        {"a { background: CD; background: linear-gradient(var(--a), red) } b { background: linear-gradient("
         "var(--a), red); background: -webkit-linear-gradient(left, #aaa, #bbb) }",
         "a: CD\nb: AB"},
    });
}

TEST(CssFinder, tellsWhatElseAValueShows) {
    constexpr std::string_view placed = "AB (size and place of the layer left out)";
    constexpr std::string_view seeThrough = "linear-gradient(90deg, #aaa, #bbb8)";
    expectAll({
        {"background: AB no-repeat 0 0 / auto 100% scroll border-box, #123", "AB"},
        {"background: AB 30% 9%", "AB"},
        {"border-image: AB 1", "AB"},
        {"background: 0 calc(1% + 9px) AB", placed},
        {"background: AB 50% / 50%", placed},
        {"background: AB fixed", placed},
        {"background: AB, CD 9px", "AB (1 more gradient left out)"},
        {"background: url(a), AB, red", "AB (other pictures left out)"},
        {"background: AB, image-set('a' 1x)", "AB (other pictures left out)"},
    });
    for (const auto& [rest, note] : {std::pair{", #ddd", " (color behind it left out)"},
                                     {" rgb(1 2 3)", " (color behind it left out)"},
                                     {" none", ""}}) {
        EXPECT_EQ(described(readCssGradients(std::string{seeThrough} + rest)),
                  std::string{"1 #aaaaaa 0, #bbbbbb/53.3 100"} + note);
    }
}

TEST(CssFinder, findsWhatIsInAPage) {
    expectAll({
        {"<!DOCTYPE html><style type=a>\n.a { background: AB }</STYLE ><p style='background: CD'>",
         ".a: AB\nCD"},
        {"<p title=\"style='background: AB'\" STYLE = \"background: url(&quot;x;y&quot;), CD; "
         "a:&#39;;border-image:AB;&#x27;;mask:AB\"/>",
         "CD (other pictures left out)\nAB"},
        {"<b class=x style=background:AB>", ""}, // its value ends at the blank
        {"some text <b style=background:linear-gradient(90deg,#aaa,#bbb)>", "AB"},
        {"<!-- <style>a { background: AB }</style> --><script>'<style>a { background: AB }'</script>"
         "<style>a > b { content: '</p>'; background: CD }",
         "a > b: CD"},
        {"<p>a { background: AB }</p>", ""},
        {"<style><!-- a { background: AB; &lt; } --> b { background: CD }", "a: AB\nb: CD"},
    });
}

TEST(CssFinder, saysHowFarItIsAndEndsWhenToldTo) {
    constexpr std::size_t count = 8000;
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += filledIn("a { background: AB }\n", ab, cd);
    }
    std::vector<double> shares;
    const auto all = readCssGradients(text, [&](double share) {
        shares.push_back(share);
        return true;
    });
    EXPECT_GT(shares.size(), 4U);
    EXPECT_TRUE(std::ranges::is_sorted(shares) && shares.front() >= 0 && shares.back() <= 1);
    EXPECT_EQ(all.gradients.size(), count);
    EXPECT_TRUE(readCssGradients(text, [](double share) { return share < 0.5; }).gradients.empty());
}

} // namespace
} // namespace tessaly
