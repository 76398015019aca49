#include "exchange/SvgGradientText.h"

#include "exchange/CssColor.h"
#include "exchange/SvgBetween.h"
#include "exchange/SvgColorText.h"
#include "foundation/NumberText.h"
#include "raster/LinearWay.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tessaly {
namespace {

using Opacity = GradientRamp::Opacity;

// The gradient line of CSS: its ends lie square to the outermost corners.
std::string lineText(std::int64_t orientation, Size box) {
    const LinearWay way = linearWay(orientation);
    const double lengths = std::abs(way.right) * box.width + std::abs(way.up) * box.height;
    const double half = lengths / (2.0 * (way.right * way.right + way.up * way.up));
    const auto end = [&](double side) {
        return Point{box.width / 2 + side * way.right * half, box.height / 2 - side * way.up * half};
    };
    return svgAttribute("x1", exactText(end(-1).x)) + svgAttribute("y1", exactText(end(-1).y)) +
           svgAttribute("x2", exactText(end(1).x)) + svgAttribute("y2", exactText(end(1).y));
}

std::string colorText(const Color& color) {
    const std::string bytes = svgColorText(color);
    std::string text = svgAttribute("stop-color", bytes);
    const RGBAComponents rgb = color.calibratedRGB().value_or(RGBAComponents{});
    if (const auto read = readCssColor(bytes);
        read && read->color != Color::calibratedRGB(rgb.red, rgb.green, rgb.blue)) {
        text += svgAttribute("data-color",
                             exactText(rgb.red) + ' ' + exactText(rgb.green) + ' ' + exactText(rgb.blue));
    }
    return text;
}

std::string stopText(const ColorStop& stop, std::string_view more = {}) {
    return "<stop" + svgAttribute("offset", exactText(stop.position)) + colorText(stop.color) +
           (stop.opacity < 1 ? svgAttribute("stop-opacity", exactText(stop.opacity)) : "") +
           std::string{more} + "/>\n";
}

// As the raster draws it, but for its position.
ColorStop drawnStop(const ColorStop& stop, Opacity opacity) {
    const auto& rgb = stop.color.calibratedRGB();
    if (!rgb) {
        return {stop.position, Color::black(), 0.0};
    }
    return {stop.position, stop.color, opacity == Opacity::Drawn ? stop.opacity : rgb->alpha};
}

// Like CSS, SVG draws a stop whose position lies below an earlier one at that earlier one: positions stay as
// they are.
std::string stopTexts(const Gradient& gradient, Opacity opacity) {
    std::string text;
    std::optional<ColorStop> before; // where it is drawn
    for (const ColorStop& stop : gradient.stops()) {
        ColorStop drawn = drawnStop(stop, opacity);
        const std::string own = stopText(drawn);
        if (before) {
            drawn.position = std::max(drawn.position, before->position);
            for (const ColorStop& helping : stopsBetween(*before, drawn)) {
                text += stopText(helping, svgAttribute("class", "between"));
            }
        }
        text += own;
        before = drawn;
    }
    return text;
}

} // namespace

std::string svgAttribute(std::string_view name, std::string_view value) {
    return std::string{" "}.append(name).append("=\"").append(value).append("\"");
}

std::string svgSizeText(std::int64_t width, std::int64_t height) {
    return svgAttribute("width", std::to_string(width)) + svgAttribute("height", std::to_string(height));
}

std::string svgDocumentText(std::int64_t width, std::int64_t height, const std::string& content) {
    return "<svg" + svgAttribute("xmlns", "http://www.w3.org/2000/svg") + svgSizeText(width, height) + ">\n" +
           content + "</svg>\n";
}

std::string svgGradientText(std::string_view id, const Gradient& gradient, Opacity opacity,
                            const std::optional<Size>& box) {
    const bool isRadial = gradient.orientation() == orientation::radial;
    const std::string name = isRadial ? "radialGradient" : "linearGradient";
    std::string place = svgAttribute("r", exactText(std::numbers::sqrt2 / 2)); // of the box, to its corners
    if (!isRadial) {
        place = (box ? svgAttribute("gradientUnits", "userSpaceOnUse") : "") +
                lineText(gradient.orientation(), box.value_or(Size{1.0, 1.0}));
    }
    return '<' + name + svgAttribute("id", id) + place + ">\n" + stopTexts(gradient, opacity) + "</" + name +
           ">\n";
}

} // namespace tessaly
