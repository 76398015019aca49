#include "exchange/CssColor.h"
#include "model/ColorConversion.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

// As "r g b alpha" with channels 0 ... 255, rounded, "!" behind it when the colour was clipped; "none".
std::string described(std::string_view text) {
    const auto read = readCssColor(text);
    if (!read) {
        return "none";
    }
    const RGBAComponents rgb = read->color.calibratedRGB().value();
    EXPECT_EQ(rgb.alpha, 1.0) << text;
    const auto whole = [](double channel) { return std::to_string(std::lround(channel * 255)) + ' '; };
    return whole(rgb.red) + whole(rgb.green) + whole(rgb.blue) +
           std::to_string(std::lround(read->alpha * 100)) + (read->clipped ? "!" : "");
}

TEST(CssColor, readsEverySyntax) {
    const std::vector<std::pair<std::string_view, std::string_view>> rows{
        {" /* of */ RebeccaPurple\n", "102 51 153 100"},
        {"gr\\65 y", "128 128 128 100"},
        {"transparent", "0 0 0 0"},
        {"#FA0", "255 170 0 100"},
        {"#12345680", "18 52 86 50"},
        {"RGB(300 -5 10.4 / 25%)", "255 0 10 25"},
        {"rgb(0 0 0 / 900%)", "0 0 0 100"},
        {"rgb(100%, 50%, 0%, 50%)", "255 128 0 50"},
        {"rgb(none 50% 255)", "0 128 255 100"},
        {"rgb(1 2 calc(1 + 2 * (3 - 1)) / calc(50%/2))", "1 2 5 25"},
        {"hsla(0.5turn 100% 50% / .5)", "0 255 255 50"},
        {"hsl(-120deg 100 25)", "0 0 128 100"},
        {"hsl(200grad,100%,50%)", "0 255 255 100"},
        {"hwb(3.14159265rad 20% 40%)", "51 153 153 100"},
        {"hwb(0 80% 80%)", "128 128 128 100"},
        {"oklch(0.628 0.2577 29.23deg / 10%)", "255 0 0 10"},
        {"oklch(70% 0.4 150)", "0 214 0 100!"},
        {"color(srgb 1 50% none / 30%)", "255 128 0 30"},
        {"color(srgb-linear 0.5 1 0)", "188 255 0 100"},
        {"color(display-p3 0 1 0)", "0 255 0 100!"},
        {"color(xyz 0.4124 0.2126 0.0193)", "255 0 0 100"},
        {"color(xyz-d50 0.9643 1 0.8251)", "255 255 255 100"},
        // The same green in every space.
        {"lab(46.277% -47.562 48.583)", "0 128 0 100"},
        {"lch(46.277 67.989 134.391)", "0 128 0 100"},
        {"oklab(51.975% -0.1403 0.10768)", "0 128 0 100"},
        {"oklch(0.51975 0.17686 142.495)", "0 128 0 100"},
        {"color(display-p3 0.21604 0.49418 0.13151)", "0 128 0 100"},
        {"color(a98-rgb 0.281363 0.498012 0.116746)", "0 128 0 100"},
        {"color(prophoto-rgb 0.230479 0.395789 0.129968)", "0 128 0 100"},
        {"color(rec2020 0.235202 0.431704 0.085432)", "0 128 0 100"},
        {"color(XYZ-D65 0.07719 0.15438 0.02573)", "0 128 0 100"},
    };
    for (const auto& [text, color] : rows) {
        EXPECT_EQ(described(text), color) << text;
    }
    for (const std::string_view text :
         {"", "red blue", "currentcolor", "#12345", "#ggg", "rgb(1,2,3,4,5)", "rgb(1,2 3)", "rgb(1,50%,3)",
          "rgb(none,2,3)", "rgb(1 2 3 0.5)", "hsl(1 2% 3%", "hwb(1,2%,3%)", "color(p3 1 1 1)", "lab(1 2 3px)",
          "rgb(1 2 3))", "rgb(1 2 calc(1px + 1))", "rgb(1 2 calc(1 (+ 2)))", "var(--x)"}) {
        EXPECT_EQ(described(text), text == "hsl(1 2% 3%" ? "8 8 7 100" : "none")
            << text; // ends with the text
    }
}

TEST(CssColor, knowsEveryName) {
    std::ifstream names{TESSALY_TEST_DATA "/named-colors.tsv"};
    int known = 0;
    for (std::string name, color; std::getline(names, name, '\t') && std::getline(names, color); ++known) {
        EXPECT_EQ(described(name), color) << name;
    }
    EXPECT_EQ(known, 148);
}

TEST(CssColor, makesTheChannelsOfTheNumberFields) {
    for (int channel = 0; channel < 256; ++channel) {
        const double expected = static_cast<double>(static_cast<float>(channel) / 255.0F);
        const std::string number = std::to_string(channel);
        const auto read = readCssColor("rgb(" + number + "," + number + ",0)").value();
        EXPECT_EQ(read.color, Color::calibratedRGB(expected, expected, 0));
        EXPECT_EQ(bytesOf(read.color).red, channel);
    }
    EXPECT_EQ(readCssColor("#0b0c0d").value(), readCssColor("rgb(11 12 13)").value());
}

} // namespace
} // namespace tessaly
