#include "exchange/CssReader.h"
#include "support/ReadGradients.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

struct Row {
    std::string_view text;
    std::string_view expected;
};

void expectAll(std::string_view before, std::initializer_list<Row> rows, std::string_view after) {
    for (const auto& [text, expected] : rows) {
        const std::string whole = std::string{before}.append(text).append(after);
        EXPECT_EQ(described(readCssGradients(whole)), expected) << whole;
    }
}

TEST(CssGradient, takesTheNearestDirection) {
    expectAll(
        "linear-gradient(",
        {
            {"", "0 #0000ff 0, #ff0000 100"},
            {"to left, ", "1 #0000ff 0, #ff0000 100"},
            {"TO right top, ", "2 #ff0000 0, #0000ff 100"},
            {"0,", "0 #ff0000 0, #0000ff 100"},
            {"-45deg,", "3 #ff0000 0, #0000ff 100"},
            {"calc(0.25turn + 45deg),", "3 #0000ff 0, #ff0000 100"},
            {"250grad,", "2 #0000ff 0, #ff0000 100"},
            {"1.570796rad,", "1 #ff0000 0, #0000ff 100"},
            {"37deg,", "2 #ff0000 0, #0000ff 100 (37° taken as 45°)"},
            {"0.4deg,", "0 #ff0000 0, #0000ff 100 (0.4° taken as 0°)"},
            {"340deg,", "0 #ff0000 0, #0000ff 100 (340° taken as 0°)"},
            {"-20deg,", "0 #ff0000 0, #0000ff 100 (-20° taken as 0°)"},
            {"-1e30turn,", "0 #ff0000 0, #0000ff 100"},
            {"in oklch longer hue to top,", "0 #ff0000 0, #0000ff 100 (mixing in oklch taken as in sRGB)"},
            {"in srgb,", "0 #0000ff 0, #ff0000 100"},
            {"left,", ""},
            {"to,", ""},
            {"to left right,", ""},
            {"45,", ""},
            {"in nothing,", ""},
            {",", ""},
        },
        "red, blue)");
    expectAll(
        "-webkit-",
        {
            {"linear-gradient(red, blue)", "0 #0000ff 0, #ff0000 100"},
            {"linear-gradient(bottom left, red, blue)", "2 #ff0000 0, #0000ff 100"},
            {"linear-gradient(0deg, red, blue)", "1 #ff0000 0, #0000ff 100"},
            {"linear-gradient(135deg, red, blue)", "3 #ff0000 0, #0000ff 100"},
            {"linear-gradient(-90deg, red, blue)", "0 #0000ff 0, #ff0000 100"},
            {"linear-gradient(20deg, red, blue)", "1 #ff0000 0, #0000ff 100 (20° taken as 0°)"},
            {"linear-gradient(-100deg, red, blue)", "0 #0000ff 0, #ff0000 100 (-100° taken as -90°)"},
            {"linear-gradient(to left, red, blue)", ""},
            {"radial-gradient(red, blue)", "4 #ff0000 0, #0000ff 100"},
            {"radial-gradient(left 10px, circle contain, red, blue)",
             "4 #ff0000 0, #0000ff 100 (place left 10px taken as center; circle taken as ellipse; "
             "size contain taken as farthest-corner)"},
            {"gradient(linear, left top, left bottom, from(red), to(blue), color-stop(.3, lime))",
             "0 #0000ff 0, #00ff00 70, #ff0000 100"},
            {"gradient(linear, 25% 50%, 75% 50%, color-stop(60%,red), color-stop(0.5,blue))",
             "1 #ff0000 55, #0000ff 50 (stops left in the order written)"},
            {"gradient(linear, 0 0, 100% 0, from(red), color-stop(2,lime), to(blue))",
             "1 #ff0000 0, #0000ff 100, #00ff00 100"},
            {"gradient(linear, 0 0, 100 20, from(red), to(blue))",
             "1 #ff0000 0, #0000ff 100 (101.3° taken as 90°; lengths taken in proportion)"},
            {"gradient(radial, center center, 0px, center center, 100%, color-stop(0%,red))", "4 #ff0000 0"},
            {"gradient(radial, 50% 50%, 10, 50% 50%, 20, from(red), to(blue))",
             "4 #ff0000 50, #0000ff 100 (size 20 taken as farthest-corner)"},
            {"gradient(linear, left top, left top, from(red), to(blue))", ""},
            {"gradient(linear, left top, right top)", ""},
            {"gradient(linear, left top, right top, color-stop(red))", ""},
            {"gradient(linear, rubbish, right top, from(red), to(blue))", ""},
            {"gradient(conic, left top, right top, from(red))", ""},
        },
        "");
    expectAll("-moz-linear-gradient(",
              {
                  {"to right", "1 #ff0000 0, #0000ff 100"},
                  {"center top", "0 #0000ff 0, #ff0000 100"},
                  {"0% 100% 45deg", "2 #ff0000 0, #0000ff 100"},
                  {"rubbish 45deg", ""},
              },
              ", red, blue)");
    expectAll(
        "radial-gradient(",
        {
            {"farthest-corner at 50% 50%", "4 #ff0000 0, #0000ff 100"},
            {"circle", "4 #ff0000 0, #0000ff 100 (circle taken as ellipse)"},
            {"20px 30% at top in oklab",
             "4 #ff0000 0, #0000ff 100 (size 20px 30% taken as farthest-corner; place top taken as "
             "center; mixing in oklab taken as in sRGB)"},
            {"9px", "4 #ff0000 0, #0000ff 100 (circle taken as ellipse; size 9px taken as farthest-corner)"},
            {"at left 50% top 50%", "4 #ff0000 0, #0000ff 100"},
            {"at bottom 50% right 10%",
             "4 #ff0000 0, #0000ff 100 (place bottom 50% right 10% taken as center)"},
            {"at right 1% top 0", "4 #ff0000 0, #0000ff 100 (place right 1% top 0 taken as center)"},
            {"circle ellipse", ""},
            {"circle 9%", ""},
            {"circle 9px 9px", ""},
            {"ellipse 9px", ""},
            {"9%", ""},
            {"-9px", ""},
            {"9px closest-side", ""},
            {"circle cover", ""},
            {"at nowhere", ""},
            {"at 50% left", ""},
            {"at left left", ""},
            {"at left 1px right 1px", ""},
        },
        ", red, blue)");
}

TEST(CssGradient, placesTheStops) {
    expectAll(
        "linear-gradient(to right,",
        {
            {"red", "1 #ff0000 0"},
            {"red, lime, blue 50%, white", "1 #ff0000 0, #00ff00 25, #0000ff 50, #ffffff 100"},
            {"red 10% 30%, 60% blue 90%", "1 #ff0000 10, #ff0000 30, #0000ff 60, #0000ff 90"},
            {"red 60%, lime 20%, blue, white 100%", "1 #ff0000 60, #00ff00 20, #0000ff 80, #ffffff 100"},
            {"red, 50%, blue", "1 #ff0000 0, #0000ff 100"},
            {"red, 0%, blue", "1 #ff0000 0, #0000ff 0, #0000ff 100"},
            {"red, 100%, blue", "1 #ff0000 0, #ff0000 100, #0000ff 100"},
            {"red, 20%, blue", "1 #ff0000 0, #7f007f 20, #0000ff 100 (color hint taken as a stop)"},
            {"transparent, 20%, blue",
             "1 #000000/0 0, #0000ff/50 20, #0000ff 100 (color hint taken as a stop)"},
            {"red 10px, lime 0.5in, blue 96px",
             "1 #ff0000 10.4, #00ff00 50, #0000ff 100 (lengths taken in proportion)"},
            {"red 1em, blue 4EM", "1 #ff0000 25, #0000ff 100 (lengths taken in proportion)"},
            {"red 0, lime 0px, blue", "1 #ff0000 0, #00ff00 0, #0000ff 100"},
            {"red, lime 10px, blue", "1 #ff0000 0, #00ff00 50, #0000ff 100 (lengths left out)"},
            {"red 1em, blue 4px", "1 #ff0000 0, #0000ff 100 (lengths left out)"},
            {"red -100%, blue 100%", "1 #7f007f 0, #0000ff 100 (cut at the edges)"},
            {"red 50%, #0000 150%", "1 #ff0000 50, #ff0000/50 100 (cut at the edges)"},
            {"red -50%, lime 0%, blue -20%, white 100%, red 200%",
             "1 #00ff00 0, #0000ff 0, #ffffff 100 (cut at the edges)"},
            {"red -50%, blue -20%", "1 #0000ff 0 (cut at the edges)"},
            {"red 150%, blue 110%", "1 #ff0000 100 (cut at the edges)"},
            {"red 50%, blue -20%", "1 #ff0000 50, #0000ff 50"},
            {"red calc(100% / 4), blue", "1 #ff0000 25, #0000ff 100"},
            {"color(display-p3 1 0 0), blue",
             "1 #ff0000 0, #0000ff 100 (mixing in oklab taken as in sRGB; colors clipped to sRGB)"},
            {"50%, red", ""},
            {"red, 20%, 30%, blue", ""},
            {"red 1 blue", ""},
            {"red, blue 10deg", ""},
            {"red, var(--x)", ""},
            {"red 1% 2% 3%, blue", ""},
            {"red, blue], green", ""},
        },
        ")");
    expectAll("linear-gradient(",
              {{"200deg, red 80%, lime 20%", "0 #00ff00 20, #ff0000 20 (200° taken as 180°)"}}, ")");
    expectAll(
        "repeating-",
        {
            {"linear-gradient(to top, red, blue)", "0 #ff0000 0, #0000ff 100"},
            {"linear-gradient(90deg, red, blue 20%)", "1 #ff0000 0, #0000ff 20 (repeating taken once)"},
            {"radial-gradient(closest-side, red, blue)",
             "4 #ff0000 0, #0000ff 100 (size closest-side taken as farthest-corner; repeating taken once)"},
            {"radial-gradient(red, blue 9px)",
             "4 #ff0000 0, #0000ff 100 (lengths taken in proportion; repeating taken once)"},
            {"conic-gradient(red, blue)", ""},
        },
        "");
}

TEST(CssGradient, readsTheFilter) {
    expectAll("filter: progid:DXImageTransform.Microsoft.gradient(",
              {
                  {"startcolorstr='#80ff0000', endColorstr='blue'", "0 #0000ff 0, #ff0000/50.1 100"},
                  {"GradientType=0,EndColorStr=\"#fff\",StartColorStr=#123456", "0 #ffffff 0, #123456 100"},
                  {"startColorstr='#000000'", ""},
                  {"startColorstr='(null)',endColorstr='#ffffff'", ""},
              },
              ");");
}

} // namespace
} // namespace tessaly
