#include "codegen/ColorNotation.h"

#include "foundation/NumberText.h"
#include "model/ColorConversion.h"
#include "model/ColorFormat.h"

#include <array>

namespace tessaly::colorNotation {
namespace {

std::string channels(const Color& color) {
    const RGBValue rgb = rgbValueOfAnNSColor(color);
    return std::to_string(rgb.red) + ',' + std::to_string(rgb.green) + ',' + std::to_string(rgb.blue);
}

std::string components(const Color& color) {
    const HSLValue hsl = hslValueOfAnNSColor(color);
    return fixedText(hsl.hue, 1) + ',' + fixedText(hsl.saturation, 1) + "%," + fixedText(hsl.lightness, 1) +
           '%';
}

std::string alpha(double opacity) {
    return ", " + significantText(opacity, 1);
}

using Writer = std::optional<std::string> (*)(const Color& color, double opacity);

// By notation code.
constexpr std::array writers{
    Writer{[](const Color& color, double) { return hexadecimalText(color); }},
    Writer{[](const Color& color, double) { return std::optional{"rgb(" + channels(color) + ')'}; }},
    Writer{[](const Color& color, double opacity) {
        return std::optional{"rgba(" + channels(color) + alpha(opacity) + ')'};
    }},
    Writer{[](const Color& color, double) { return std::optional{"hsl(" + components(color) + ')'}; }},
    Writer{[](const Color& color, double opacity) {
        return std::optional{"hsla(" + components(color) + alpha(opacity) + ')'};
    }},
};
static_assert(writers.size() == colorFormat::notations.size());

} // namespace

std::optional<std::string> hexadecimalText(const Color& color) {
    if (!color.calibratedRGB()) {
        return std::nullopt;
    }
    const auto [red, green, blue] = bytesOf(color);
    std::string text = "#";
    for (const std::int32_t channel : {red, green, blue}) {
        text += hexByteText(static_cast<std::uint32_t>(channel));
    }
    return text;
}

std::optional<std::string> colorText(std::int64_t notation, const Color& color, double opacity) {
    return colorFormat::isKnown(notation) ? writers[static_cast<std::size_t>(notation)](color, opacity)
                                          : std::nullopt;
}

} // namespace tessaly::colorNotation
