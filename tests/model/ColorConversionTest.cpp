#include "model/GlobalData.h"

#include "support/LogCapture.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tessaly {

void PrintTo(const RGBValue& rgb, std::ostream* out) {
    *out << rgb.red << ' ' << rgb.green << ' ' << rgb.blue;
}

void PrintTo(const HSLValue& hsl, std::ostream* out) {
    *out << hsl.hue << ' ' << hsl.saturation << ' ' << hsl.lightness;
}

namespace {

Color grey(double level) {
    return Color::calibratedRGB(level, level, level);
}

TEST(ColorConversion, roundsChannelsSoThatAFullOneIs256) {
    const std::pair<Color, RGBValue> rows[] = {
        {Color::white(), {256, 256, 256}}, {Color::black(), {0, 0, 0}},
        {grey(0.5), {128, 128, 128}},      {grey(0.999), {256, 256, 256}},
        {grey(0.998), {255, 255, 255}},    {Color::withoutRGBForm(), {0, 0, 0}},
        {grey(2.0), {256, 256, 256}},      {grey(-1.0), {0, 0, 0}}};
    for (const auto& [color, expected] : rows) {
        EXPECT_EQ(GlobalData::rgbValueOfAnNSColor(color), expected);
    }
    EXPECT_EQ(_rgbValueOfAnNSColor(Color::calibratedRGB(1.0, 0.7, 0.5)), (RGBValue{255, 179, 127}));
}

TEST(ColorConversion, readsHueAsAWholeNumberAndTheRestUnrounded) {
    const std::pair<Color, HSLValue> rows[] = {{Color::calibratedRGB(1, 0, 0), {0, 100, 50}},
                                               {Color::white(), {0, 0, 100}},
                                               {Color::calibratedRGB(0, 0, 1), {240, 100, 50}},
                                               {Color::calibratedRGB(1, 0, 1), {300, 100, 50}},
                                               {Color::calibratedRGB(0, 1, 0), {120, 100, 50}},
                                               {Color::calibratedRGB(1, 1, 0), {60, 100, 50}},
                                               {Color::withoutRGBForm(), {0, 0, 0}}};
    for (const auto& [color, expected] : rows) {
        EXPECT_EQ(GlobalData::hslValueOfAnNSColor(color), expected);
    }
    const HSLValue dark = GlobalData::hslValueOfAnNSColor(Color::calibratedRGB(0.1, 0.2, 0.25));
    EXPECT_EQ(dark.hue, 200); // computes to exactly 200
    EXPECT_NEAR(dark.saturation, 42.857142857, 1e-8);
    EXPECT_NEAR(dark.lightness, 17.5, 1e-12);
    EXPECT_EQ(_hslValueOfAnNSColor(Color::calibratedRGB(1, 0, 1)).hue, -60);
    const HSLValue almostRed = GlobalData::hslValueOfAnNSColor(Color::calibratedRGB(1.0, 0.0, 0.001));
    EXPECT_TRUE(almostRed.hue == 0 && !std::signbit(almostRed.hue)) << "a hue just below 0 rounds to 0";
}

TEST(ColorConversion, convertsBackWithTheLiteralThirds) {
    const std::pair<HSLValue, RGBValue> rows[] = {
        {{0, 100, 50}, {255, 0, 0}},
        {{240, 100, 50}, {0, 0, 255}},
        {{60, 100, 50}, {255, 255, 0}},
        {{120, 100, 50}, {-1, 255, 1}},
        {{0, 0, 50}, {127, 127, 127}},
        {{0, 0, 100}, {255, 255, 255}},
        {{0, 0.001, 50}, {128, 127, 127}},
        {{-360, 100, 50}, {255, 0, -509}}, // wrapped only once, and never
        {{0, 0, 1e300}, {2147483647, 2147483647, 2147483647}},
        // clamped
    };
    for (const auto& [hsl, expected] : rows) {
        EXPECT_EQ(GlobalData::hslToRGB(hsl), expected) << testing::PrintToString(hsl);
    }
}

TEST(ColorConversion, logsWhatItComputed) {
    const LogCapture log;
    GlobalData::hslToRGB({120, 100, 50});
    GlobalData::hslToRGB({120, 0, 50});
    EXPECT_EQ(log.messages, (std::vector<std::string>{"Temporary RGB: 0.666333, 0.333333, 0.000333",
                                                      "RGB: -1, 255, 1", "RGB: 127, 127, 127"}));
}

TEST(GlobalData, startsEmptyAndHandsOutLiveArrays) {
    EXPECT_EQ(&GlobalData::sharedData(), &GlobalData::sharedData());
    GlobalData data;
    EXPECT_FALSE(data.formReady());
    EXPECT_EQ(data.tempFolderPath(), "");
    EXPECT_EQ(data.orientationType(), 1);
    EXPECT_EQ(data.colorFormatType(), 0);
    EXPECT_EQ(data.stopCount(), 0U);
    data.colorMarkerPos() = {0.0, 1.0};
    data.colorMarkerColor() = {Color::black()};
    data.colorMarkerOpacity() = {1.0, 0.5, 0.25};
    EXPECT_EQ(data.stopCount(), 1U) << "a stop is in all three arrays or none";
    EXPECT_TRUE(data.stopAt(0));
    EXPECT_FALSE(data.stopAt(1));
    EXPECT_FALSE(data.stopAt(-1));
}

} // namespace
} // namespace tessaly
