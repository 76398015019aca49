#include "codegen/StandardText.h"
#include "exchange/PresetTexts.h"
#include "exchange/Readers.h"
#include "exchange/SvgWriter.h"
#include "model/ColorFormat.h"
#include "support/Gradients.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace tessaly {
namespace {

using Opacity = GradientRamp::Opacity;

Gradient opaque(const Gradient& gradient) {
    std::vector<ColorStop> stops = gradient.stops();
    std::ranges::for_each(stops, [](ColorStop& stop) { stop.opacity = 1; });
    return Gradient{stops, gradient.orientation()};
}

void expectRead(const FoundGradient& found, const Gradient& gradient, const std::string& name) {
    EXPECT_EQ(found.gradient, gradient);
    EXPECT_TRUE(found.notes.empty() && found.name == name) << found.name;
}

TEST(SvgWriter, isReadAsExactlyTheSameGradientAndLetsWhatIsChangedByHandCount) {
    std::mt19937 random{6};
    for (int round = 1; round <= 400 && !HasFailure(); ++round) {
        const Gradient gradient = randomGradient(random);
        for (const Opacity opacity : {Opacity::Drawn, Opacity::Ignored}) {
            const std::string text = svgPictureText(gradient, opacity, 1 + round * 7 % 2000, round);
            SCOPED_TRACE(text);
            const Reading reading = readGradients(text);
            ASSERT_EQ(reading.gradients.size(), 1U);
            expectRead(reading.gradients[0], opacity == Opacity::Drawn ? gradient : opaque(gradient),
                       "gradient");
            const auto lines = static_cast<std::size_t>(std::ranges::count(text, '\n'));
            const std::size_t most = gradient.stops().size() * (opacity == Opacity::Drawn ? 14 : 1);
            EXPECT_LE(lines, most + 5) << "few stops help";
        }
    }
    std::string text = svgPictureText(Gradient{{{0.6, Color::calibratedRGB(0.1, 0.2, 0.3)}}}, {}, 9, 9);
    text.replace(text.find("#1a334d"), 7, "#00ff00");
    EXPECT_EQ(readGradients(text).gradients.at(0).gradient.stops()[0].color, Color::calibratedRGB(0, 1, 0));
}

TEST(PresetTexts, areReadAsTheSame) {
    std::mt19937 random{8};
    std::vector<Gradient> presets(40);
    std::ranges::generate(presets, [&] { return randomGradient(random); });
    presets[7] = opaque(presets[7]);
    presets[9] = Gradient{};
    const auto css = readGradients(presetsCssText(presets)).gradients;
    const auto svg = readGradients(presetsSvgText(presets)).gradients;
    ASSERT_TRUE(css.size() == 39 && svg.size() == 39);
    presets.erase(presets.begin() + 9);
    for (std::size_t i = 0; i < presets.size(); ++i) {
        const std::string name = "preset-" + std::to_string(i < 9 ? i + 1 : i + 2);
        expectRead(svg[i], presets[i], name);
        const auto notation = presets[i] == opaque(presets[i]) ? colorFormat::hexadecimal : colorFormat::rgba;
        const std::string value = standardValueText(presets[i], notation);
        expectRead(css[i], readGradients(value).gradients.at(0).gradient, '.' + name);
    }
    const Color red = Color::calibratedRGB(1, 0, 0);
    EXPECT_EQ(presetsCssText(std::vector{Gradient{{{0, red}}}, Gradient{{{1, red, 0.5}}, 7}}),
              ".preset-1 { background: linear-gradient(to right, #ff0000 0%); }\n"
              ".preset-2 { background: linear-gradient(to right, rgba(256,0,0, 0.5) 100%); }\n");
}

} // namespace
} // namespace tessaly
