#include "exchange/SvgDocument.h"

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

bool mixesLinearly(const XmlAttributes& attributes) {
    std::string_view space = valueOr(attributes, "color-interpolation");
    const std::string style = withoutComments(valueOr(attributes, "style"));
    std::string_view declarations = style;
    while (const auto declaration = takeDeclaration(declarations)) {
        space = declaration->name == "color-interpolation" ? declaration->value : space;
    }
    return trimmed(space) == "linearRGB";
}

std::optional<bool> isRepeated(std::string_view method) {
    return method == "reflect" ? std::optional{true} : choice(method, "pad", "repeat");
}

bool isHelper(std::string_view classes) {
    while (const auto name = takeWord(classes)) {
        if (*name == helperClass) {
            return true;
        }
    }
    return false;
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

SvgStopStyle styleOf(const XmlAttributes& attributes, const SvgStyleSheet& styles) {
    SvgStopStyle style;
    for (const std::string_view name : {"stop-color", "stop-opacity"}) {
        style.declare({name, valueOr(attributes, name)}, SvgStopStyle::attribute);
    }
    styles.applyTo(style, valueOr(attributes, "class"), valueOr(attributes, "id"));
    if (const auto own = attributes.value("style")) {
        style.declareAll(withoutComments(*own), SvgStopStyle::own);
    }
    return style;
}

} // namespace

void SvgDocument::startElement(std::string_view name, const XmlAttributes& attributes) {
    ++depth_;
    if (depth_ == 1) {
        readViewport(attributes);
    }
    if (name == "linearGradient" || name == "radialGradient") {
        addGradient(name == "radialGradient", attributes);
    } else if (name == "stop" && gradientDepth_ > 0 && depth_ == gradientDepth_ + 1) {
        addStop(attributes);
    }
}

void SvgDocument::endElement() {
    if (depth_ == gradientDepth_) {
        gradientDepth_ = 0;
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
    const auto length = [&](const char* name, const std::optional<double>& ofBox, double otherwise) {
        const auto written = svgLength(valueOr(attributes, name));
        return ofBox ? *ofBox : written && !written->isShare ? written->value : otherwise;
    };
    viewport_ = {length("width", numbers[2], viewport_.width),
                 length("height", numbers[3], viewport_.height)};
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
    gradient.isMixedLinearly = mixesLinearly(attributes);
    gradient.firstStop = stops_.size();
    gradientDepth_ = depth_;
}

void SvgDocument::addStop(const XmlAttributes& attributes) {
    SvgGradient& gradient = gradients_.back();
    if (isHelper(valueOr(attributes, "class"))) {
        if (gradient.stopCount > 0) {
            stops_.back().isHelped = true;
        }
        return;
    }
    if (gradient.stopCount == mostStops || stops_.size() == mostStopsInAll) {
        isComplete_ = false;
        return;
    }
    ReadColor color = styleOf(attributes, styles_).color();
    color.color = heldColor(valueOr(attributes, "data-color"), color.color);
    const double offset = svgLength(valueOr(attributes, "offset")).value_or(SvgLength{}).value;
    stops_.push_back({color, std::clamp(offset, 0.0, 1.0)});
    ++gradient.stopCount;
}

} // namespace tessaly
