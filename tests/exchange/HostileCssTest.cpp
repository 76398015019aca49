#include "exchange/CssReader.h"
#include "support/Repeated.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

constexpr std::size_t megabyte = 1U << 20U;

TEST(HostileCss, isAnswered) {
    const std::vector<std::pair<std::string, std::size_t>> rows{
        {repeated("{", 100'000) + "a{background:linear-gradient(red,blue)}", 0},
        {"linear-gradient(" + repeated("rgb(", 100'000), 0},
        {"linear-gradient(red calc(" + repeated("1% + (", 100'000) + "1%", 0},
        {repeated("linear-gradient(", 100'000) + "red", 0},
        {repeated("image-set(", 100'000) + "linear-gradient(red, blue)", 1},
        {repeated("a{", 900) + "background:linear-gradient(red,blue)", 1},
        {"linear-gradient(" + repeated("var(--a,", 100'000), 0},
        {"--a:" + repeated("var(--b)", 1000) + ";--b:" + repeated("var(--a)", 1000) +
             repeated(";x:linear-gradient(var(--a))", 1000),
         0},
        {repeated("<", 100'000), 0},
        {"<style>" + repeated("</", 100'000), 0},
        {"<p style='" + repeated("&", 100'000) + repeated("&#1", 100'000), 0},
        {repeated("/*", 100'000), 0},
        {"url(" + repeated("\\", 100'001), 0},
        {repeated("linear-gradient(90deg, #aaa, #bbb);", 100) + "'" + repeated("x", megabyte), 100},
        {std::string{"linear-gradient(red\0, blue)", 27}, 0},
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

} // namespace
} // namespace tessaly
