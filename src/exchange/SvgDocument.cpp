#include "exchange/SvgDocument.h"

#include "exchange/CssCharacter.h"
#include "exchange/CssUnread.h"
#include "exchange/SvgColorText.h"

#include <algorithm>
#include <array>

namespace tessaly {
namespace {

// In the order of SvgGradient::Geometry.
constexpr std::array<std::string_view, 6> linearNames{"x1", "y1", "x2", "y2", "", ""};
constexpr std::array<std::string_view, 6> radialNames{"cx", "cy", "r", "fx", "fy", "fr"};

// What only serves to make the picture of a program that mixes otherwise; Tessaly writes such stops.
constexpr std::string_view helperClass = "between";

constexpr std::size_t mostStyled = 1000; // elements around a stop that its style is looked for in

std::string_view valueOr(const XmlAttributes& attributes, std::string_view name,
                         std::string_view otherwise = {}) {
    return attributes.value(name).value_or(otherwise);
}

// One of two words; any other text counts as nothing written.
std::optional<bool> choice(std::string_view text, std::string_view no, std::string_view yes) {
    return text == no ? std::optional{false} : text == yes ? std::optional{true} : std::nullopt;
}

std::string referenceOf(const XmlAttributes& attributes) {
    const std::string_view address = trimmed(valueOr(attributes, "href", valueOr(attributes, "xlink:href")));
    return std::string{address.starts_with('#') ? address.substr(1) : std::string_view{}};
}

std::optional<bool> isRepeated(std::string_view method) {
    return method == "reflect" ? std::optional{true} : choice(method, "pad", "repeat");
}

// What Tessaly holds beside the bytes that it wrote, unless the bytes are others by now.
Color heldColor(std::string_view held, const Color& written) {
    std::array<double, 3> channels{};
    for (double& channel : channels) {
        skipSeparators(held);
        const auto number = takeNumber(held);
        if (!number) {
            return written;
        }
        channel = *number;
    }
    const Color exact = Color::calibratedRGB(channels[0], channels[1], channels[2]);
    return svgColorText(exact) == svgColorText(written) ? exact : written;
}

} // namespace

void SvgDocument::startElement(std::string_view name, const XmlAttributes& attributes) {
    ++depth_;
    const bool isStop = name == "stop" && gradientDepth_ > 0 && depth_ == gradientDepth_ + 1;
    if (isStop || path_.size() < mostStyled) {
        path_.push_back(svgElement(name, attributes));
    }
    if (depth_ == 1) {
        readViewport(attributes);
    }
    if (name == "linearGradient" || name == "radialGradient") {
        addGradient(name == "radialGradient", attributes);
    } else if (isStop) {
        addStop(attributes);
    }
}

void SvgDocument::endElement() {
    if (depth_ == gradientDepth_) {
        gradientDepth_ = 0;
    }
    if (path_.size() == depth_ || path_.size() > mostStyled) {
        path_.pop_back();
    }
    --depth_;
}

void SvgDocument::readViewport(const XmlAttributes& attributes) {
    std::string_view box = valueOr(attributes, "viewBox");
    std::array<std::optional<double>, 4> numbers;
    for (std::optional<double>& number : numbers) {
        skipSeparators(box);
        number = takeNumber(box);
    }
    const auto length = [&](const char* name, const std::optional<double>& ofBox) {
        constexpr double otherwise = 100.0;
        const auto written = svgLength(valueOr(attributes, name));
        return ofBox ? *ofBox : written && !written->isShare ? written->value : otherwise;
    };
    viewport_ = {length("width", numbers[2]), length("height", numbers[3])};
}

void SvgDocument::addGradient(bool isRadial, const XmlAttributes& attributes) {
    if (gradients_.size() == mostGradients) {
        isComplete_ = false;
        gradientDepth_ = 0;
        return;
    }
    SvgGradient& gradient = gradients_.emplace_back();
    gradient.isRadial = isRadial;
    gradient.id = valueOr(attributes, "id");
    gradient.reference = referenceOf(attributes);
    const auto& names = isRadial ? radialNames : linearNames;
    std::ranges::transform(names, gradient.geometry.begin(),
                           [&](std::string_view name) { return svgLength(valueOr(attributes, name)); });
    gradient.isInUserSpace =
        choice(valueOr(attributes, "gradientUnits"), "objectBoundingBox", "userSpaceOnUse");
    gradient.isRepeated = isRepeated(valueOr(attributes, "spreadMethod"));
    if (const auto transform = attributes.value("gradientTransform")) {
        gradient.transform = svgTransform(*transform);
    }
    gradient.isMixedLinearly = styles_.styleOf(path_).value(SvgProperty::ColorInterpolation) == "linearRGB";
    gradient.viewport = viewport_;
    gradient.firstStop = stops_.size();
    gradientDepth_ = depth_;
}

void SvgDocument::addStop(const XmlAttributes& attributes) {
    SvgGradient& gradient = gradients_.back();
    if (hasWord(valueOr(attributes, "class"), helperClass)) {
        if (gradient.stopCount > 0) {
            stops_.back().isHelped = true;
        }
        return;
    }
    if (gradient.stopCount == mostStops || stops_.size() == mostStopsInAll) {
        isComplete_ = false;
        return;
    }
    const double offset = svgLength(valueOr(attributes, "offset")).value_or(SvgLength{}).value;
    SvgStop& stop = stops_.emplace_back(SvgStop{{}, std::clamp(offset, 0.0, 1.0)});
    readStyle(stop);
    stop.color.color = heldColor(valueOr(attributes, "data-color"), stop.color.color);
    ++gradient.stopCount;
}

// Of the innermost open element.
void SvgDocument::readStyle(SvgStop& stop) {
    const SvgStyle style = styles_.styleOf(path_);
    const std::string color = styles_.resolved(style.value(SvgProperty::StopColor), path_);
    const std::string opacity = styles_.resolved(style.value(SvgProperty::StopOpacity), path_);
    const auto readColor = readCssColor(color);
    const auto share = svgLength(opacity);
    stop.color = readColor.value_or(ReadColor{});
    stop.color.alpha *= share ? std::clamp(share->value, 0.0, 1.0) : 1.0;
    if (style.isUnsure) {
        stop.unread = "needs another selector";
    }
    const std::string_view reason = whyCssUnread(readColor ? opacity : color);
    stop.unread = reason.empty() ? stop.unread : reason;
}

} // namespace tessaly
