#include "codegen/ColorNotation.h"

#include "foundation/NumberText.h"
#include "model/ColorFormat.h"
#include "model/GlobalData.h"

#include <array>

namespace tessaly::colorNotation {
namespace {

std::string rgbChannels(const Color& color) {
    const RGBValue rgb = GlobalData::rgbValueOfAnNSColor(color);
    return std::to_string(rgb.red) + ',' + std::to_string(rgb.green) + ',' + std::to_string(rgb.blue);
}

std::string hslComponents(const Color& color) {
    const HSLValue hsl = GlobalData::hslValueOfAnNSColor(color);
    return fixedText(hsl.hue, 1) + ',' + fixedText(hsl.saturation, 1) + "%," + fixedText(hsl.lightness, 1) +
           '%';
}

using Writer = std::optional<std::string> (*)(const Color& color, double opacity);

// By notation code.
constexpr std::array writers{
    Writer{[](const Color& color, double) { return hexadecimalValueOfAnNSColor(color); }},
    Writer{[](const Color& color, double) { return std::optional{rgbValueOfAnNSColor(color)}; }},
    Writer{[](const Color& color, double opacity) {
        return std::optional{rgbaValueOfAnNSColor(color, opacity)};
    }},
    Writer{[](const Color& color, double) { return std::optional{hslValueOfAnNSColor(color)}; }},
    Writer{[](const Color& color, double opacity) {
        return std::optional{hslaValueOfAnNSColor(color, opacity)};
    }},
};
static_assert(writers.size() == colorFormat::notations.size());

} // namespace

std::optional<std::string> hexadecimalValueOfAnNSColor(const Color& color) {
    if (!color.calibratedRGB()) {
        return std::nullopt;
    }
    const RGBValue rgb = _rgbValueOfAnNSColor(color);
    std::string text = "#";
    for (const std::int32_t channel : {rgb.red, rgb.green, rgb.blue}) {
        text += hexByteText(static_cast<std::uint32_t>(channel));
    }
    return text;
}

std::string rgbValueOfAnNSColor(const Color& color) {
    return "rgb(" + rgbChannels(color) + ')';
}

std::string rgbaValueOfAnNSColor(const Color& color, double alpha) {
    return "rgba(" + rgbChannels(color) + ", " + significantText(alpha, 1) + ')';
}

std::string hslValueOfAnNSColor(const Color& color) {
    return "hsl(" + hslComponents(color) + ')';
}

std::string hslaValueOfAnNSColor(const Color& color, double alpha) {
    return "hsla(" + hslComponents(color) + ", " + significantText(alpha, 1) + ')';
}

std::optional<std::string> colorText(std::int64_t colorFormatType, const Color& color, double opacity) {
    return colorFormat::isKnown(colorFormatType)
               ? writers[static_cast<std::size_t>(colorFormatType)](color, opacity)
               : std::nullopt;
}

} // namespace tessaly::colorNotation
