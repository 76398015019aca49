#include "exchange/SvgColorText.h"

#include "foundation/NumberText.h"

#include <cmath>

namespace tessaly {

std::string svgColorText(const Color& color) {
    const RGBAComponents rgb = color.calibratedRGB().value_or(RGBAComponents{});
    std::string text = "#";
    for (const double channel : {rgb.red, rgb.green, rgb.blue}) {
        text += hexByteText(static_cast<std::uint32_t>(std::lround(channel * 255)));
    }
    return text;
}

} // namespace tessaly
