#include "codegen/ColorNotation.h"

#include "foundation/NumberText.h"
#include "model/ColorConversion.h"
#include "model/ColorFormat.h"

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

} // namespace

std::optional<std::string> colorText(std::int64_t notation, const Color& color, double opacity) {
    static_assert(colorFormat::notations.size() == 5, "one case for each");
    switch (notation) {
    case colorFormat::hexadecimal:
        return hexadecimalText(color);
    case colorFormat::rgb:
        return "rgb(" + channels(color) + ')';
    case colorFormat::rgba:
        return "rgba(" + channels(color) + alpha(opacity) + ')';
    case colorFormat::hsl:
        return "hsl(" + components(color) + ')';
    case colorFormat::hsla:
        return "hsla(" + components(color) + alpha(opacity) + ')';
    default:
        return std::nullopt;
    }
}

} // namespace tessaly::colorNotation
