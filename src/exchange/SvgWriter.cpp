#include "exchange/SvgWriter.h"

#include "exchange/SvgGradientText.h"

namespace tessaly {

std::string svgPictureText(const Gradient& gradient, GradientRamp::Opacity opacity, int width, int height) {
    const std::string size =
        "width=\"" + std::to_string(width) + "\" height=\"" + std::to_string(height) + "\"";
    const Size box{static_cast<double>(width), static_cast<double>(height)};
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" " + size + ">\n" +
           svgGradientText("gradient", gradient, opacity, box) + "<rect " + size +
           " fill=\"url(#gradient)\"/>\n</svg>\n";
}

} // namespace tessaly
