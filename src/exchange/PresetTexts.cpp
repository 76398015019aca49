#include "exchange/PresetTexts.h"

#include "codegen/StandardText.h"
#include "exchange/SvgGradientText.h"
#include "model/ColorFormat.h"

#include <algorithm>

namespace tessaly {
namespace {

std::string nameOf(std::size_t index) {
    return "preset-" + std::to_string(index + 1);
}

// In a notation that browsers can read all of it in.
std::int64_t notationFor(const Gradient& gradient) {
    const bool isOpaque = std::ranges::all_of(gradient.stops(), [](const ColorStop& stop) {
        return stop.opacity >= 1 && stop.color.calibratedRGB();
    });
    return isOpaque ? colorFormat::hexadecimal : colorFormat::rgba;
}

constexpr std::size_t columns = 10; // of the grid of squares
constexpr std::size_t step = 72;    // a square and the gap to the next one

std::string sizeText(std::size_t count) {
    return " width=\"" + std::to_string(columns * step) + "\" height=\"" +
           std::to_string((count + columns - 1) / columns * step) + '"';
}

std::string squareText(std::size_t index) {
    return "<rect x=\"" + std::to_string(index % columns * step) + "\" y=\"" +
           std::to_string(index / columns * step) + R"(" width="64" height="64" fill="url(#)" +
           nameOf(index) + ")\"/>\n";
}

} // namespace

std::string presetsCssText(std::span<const Gradient> gradients) {
    std::string text;
    for (std::size_t i = 0; i < gradients.size(); ++i) {
        if (!gradients[i].stops().empty()) {
            text += '.' + nameOf(i) + " { " +
                    standardDeclarationText(gradients[i], notationFor(gradients[i])) + " }\n";
        }
    }
    return text;
}

std::string presetsSvgText(std::span<const Gradient> gradients) {
    std::string text = "<svg xmlns=\"http://www.w3.org/2000/svg\"" + sizeText(gradients.size()) + ">\n";
    for (std::size_t i = 0; i < gradients.size(); ++i) {
        if (!gradients[i].stops().empty()) {
            text += svgGradientText(nameOf(i), gradients[i], GradientRamp::Opacity::Drawn, std::nullopt);
            text += squareText(i);
        }
    }
    return text + "</svg>\n";
}

} // namespace tessaly
