#include "exchange/SvgWriter.h"

#include "exchange/SvgGradientText.h"

namespace tessaly {

std::string svgPictureText(const Gradient& gradient, GradientRamp::Opacity opacity, int width, int height) {
    const Size box{static_cast<double>(width), static_cast<double>(height)};
    return svgDocumentText(width, height,
                           svgGradientText("gradient", gradient, opacity, box) + "<rect" +
                               svgSizeText(width, height) + svgAttribute("fill", "url(#gradient)") + "/>\n");
}

} // namespace tessaly
