#include "model/ColorConversion.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

constexpr auto rgb = [](double red, double green, double blue) {
    return Color::calibratedRGB(red, green, blue);
};

TEST(ColorConversion, readsAFullChannelAs256AndTheHueAsAWholeNumber) {
    const struct {
        Color color;
        RGBValue channels;
        HSLValue hsl;
    } rows[] = {{Color::white(), {256, 256, 256}, {0, 0, 100}},
                {rgb(2, -1, 0.5), {256, 0, 128}, {330, 100, 50}},
                {rgb(0.999, 0.998, 0.998), {256, 255, 255}, {0, 33.3333333333, 99.85}},
                {Color::withoutRGBForm(), {0, 0, 0}, {0, 0, 0}},
                {rgb(0, 1, 0), {0, 256, 0}, {120, 100, 50}},
                {rgb(0, 0, 1), {0, 0, 256}, {240, 100, 50}},
                {rgb(1, 0, 1), {256, 0, 256}, {300, 100, 50}},
                {rgb(0.1, 0.2, 0.25), {26, 51, 64}, {200, 42.8571428571, 17.5}}};
    for (const auto& [color, channels, hsl] : rows) {
        SCOPED_TRACE(&color - &rows[0].color);
        EXPECT_EQ(rgbValueOfAnNSColor(color), channels);
        const HSLValue read = hslValueOfAnNSColor(color);
        EXPECT_EQ(read.hue, hsl.hue);
        EXPECT_NEAR(read.saturation, hsl.saturation, 1e-8);
        EXPECT_NEAR(read.lightness, hsl.lightness, 1e-8);
    }
    const HSLValue almostRed = hslValueOfAnNSColor(rgb(1.0, 0.0, 0.001));
    EXPECT_TRUE(almostRed.hue == 0 && !std::signbit(almostRed.hue)) << "a hue just below 0 rounds to 0";
    EXPECT_EQ(bytesOf(rgb(1.0, 0.7, 0.5)), (RGBValue{255, 179, 127})) << "cut";
}

TEST(ColorConversion, convertsBackWithTheLiteralThirdsWrappingOnceAndNeverClamping) {
    const std::array<double, 6> rows[] = {{0, 100, 50, 255, 0, 0},      {240, 100, 50, 0, 0, 255},
                                          {60, 100, 50, 255, 255, 0},   {120, 100, 50, -1, 255, 1},
                                          {0, 0, 50, 127, 127, 127},    {0, 0.001, 50, 128, 127, 127},
                                          {-360, 100, 50, 255, 0, -509}};
    for (const auto& [hue, saturation, lightness, red, green, blue] : rows) {
        const RGBValue channels{static_cast<int>(red), static_cast<int>(green), static_cast<int>(blue)};
        EXPECT_EQ(hslToRGB({hue, saturation, lightness}), channels) << hue << ' ' << saturation;
    }
    EXPECT_EQ(hslToRGB({0, 0, 1e300}).red, 2147483647);
}

} // namespace
} // namespace tessaly
