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

std::string squareText(std::size_t index) {
    return "<rect" + svgAttribute("x", std::to_string(index % columns * step)) +
           svgAttribute("y", std::to_string(index / columns * step)) + svgSizeText(64, 64) +
           svgAttribute("fill", "url(#" + nameOf(index) + ')') + "/>\n";
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
    std::string text;
    for (std::size_t i = 0; i < gradients.size(); ++i) {
        if (!gradients[i].stops().empty()) {
            text += svgGradientText(nameOf(i), gradients[i], GradientRamp::Opacity::Drawn, std::nullopt);
            text += squareText(i);
        }
    }
    const std::size_t rows = (gradients.size() + columns - 1) / columns;
    return svgDocumentText(columns * step, static_cast<std::int64_t>(rows * step), text);
}

} // namespace tessaly
