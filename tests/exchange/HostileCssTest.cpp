#include "exchange/CssReader.h"

#include <gtest/gtest.h>
#include <random>

namespace tessaly {
namespace {

constexpr std::size_t megabyte = 1U << 20U;

std::string repeated(std::string_view piece, std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += piece;
    }
    return text;
}

TEST(HostileCss, isAnswered) {
    const std::vector<std::pair<std::string, std::size_t>> rows{
        {repeated("(", 100'000), 0},
        {repeated("{", 100'000) + "a{background:linear-gradient(red,blue)}", 0},
        {"linear-gradient(" + repeated("(", 100'000), 0},
        {"linear-gradient(" + repeated("rgb(", 100'000), 0},
        {"linear-gradient(red calc(" + repeated("(", 100'000) + "1%", 0},
        {"linear-gradient(red calc(" + repeated("1% + (", 100'000) + "1%", 0},
        {repeated("linear-gradient(", 100'000) + "red", 0},
        {repeated("image-set(", 100'000) + "linear-gradient(red, blue)", 1},
        {repeated("a{", 900) + "background:linear-gradient(red,blue)", 1},
        {repeated("<", 100'000), 0},
        {"<style>" + repeated("</", 100'000), 0},
        {"<p style='" + repeated("&", 100'000) + repeated("&#1", 100'000), 0},
        {repeated("/*", 100'000), 0},
        {repeated("'\\\n", 100'000), 0},
        {repeated("\\", 100'001), 0},
        {"url(" + repeated("\\", 100'001), 0},
        {repeated("linear-gradient(90deg, #aaa, #bbb);", 100) + "'" + repeated("x", megabyte), 100},
        {std::string{"linear-gradient(red\0, blue)", 27}, 0},
        {std::string{"\0\0background:linear-gradient(\0", 31}, 0},
        {"\xED\xA0\x80{background:linear-gradient(red,blue)}\xFF\xC0", 1},
        {"\\d800 \\0 \\110000 {background:linear-gradient(red,blue)}", 1},
        {"linear-gradient(1e999turn, red -1e999%, blue 1e-999%, lime 1e40%)", 1},
        {"linear-gradient(red " + repeated("9", 100'000) + "%, blue)", 1},
        {repeated("a:", 8 * megabyte) + "linear-gradient(red,blue)", 0}, // behind the end
    };
    for (const auto& [text, count] : rows) {
        EXPECT_EQ(readCssGradients(text).gradients.size(), count) << text.substr(0, 60);
    }
}

TEST(HostileCss, isReadUpToTheLimits) {
    const auto many = readCssGradients(repeated("a{background:linear-gradient(red,blue)}", 10'001));
    EXPECT_TRUE(many.gradients.size() == 10'000 && !many.complete);
    const auto exactlyAll = readCssGradients(repeated("a{background:linear-gradient(red,blue)}", 10'000));
    EXPECT_TRUE(exactlyAll.gradients.size() == 10'000 && exactlyAll.complete);
    for (const std::size_t count : {std::size_t{5000}, std::size_t{5001}}) {
        const auto doubled =
            readCssGradients("linear-gradient(" + repeated("red 0 1%,", count - 1) + "red 0 100%);" +
                             "radial-gradient(" + repeated("blue,", 200'000) + "red)");
        EXPECT_EQ(doubled.gradients.size(), count == 5000 ? 1U : 0U);
        EXPECT_FALSE(doubled.complete);
    }
    const auto large = readCssGradients("linear-gradient(red, blue);" + repeated(" ", 16 * megabyte));
    EXPECT_TRUE(large.gradients.size() == 1 && !large.complete);
}

// Whatever is torn out of a text or put into it, what is found lies within its ranges.
TEST(HostileCss, isHarmlessWhenTorn) {
    const std::string whole =
        "@media x { .a:hover { background: linear-gradient(to left, rgba(256,0,0, 0.4) "
        "-20%, 30%, lab(50 -80 90) 1e3px 2%, #12345678 calc(3 * 50%)), url(x) } } <style>";
    std::mt19937 random{3};
    const auto upTo = [&](std::size_t most) {
        return std::uniform_int_distribution<std::size_t>{0, most}(random);
    };
    for (int round = 0; round < 20'000; ++round) {
        std::string text = whole;
        for (std::size_t edits = upTo(3); edits > 0; --edits) {
            const std::size_t place = upTo(text.size() - 1);
            text.replace(place, upTo(4), whole.substr(upTo(whole.size() - 1), upTo(4)));
        }
        for (const FoundGradient& found : readCssGradients(text).gradients) {
            for (const ColorStop& stop : found.gradient.stops()) {
                ASSERT_TRUE(stop.position >= 0 && stop.position <= 1 && stop.opacity >= 0 &&
                            stop.opacity <= 1)
                    << text;
            }
        }
    }
}

} // namespace
} // namespace tessaly
