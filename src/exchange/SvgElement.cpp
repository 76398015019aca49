#include "exchange/SvgElement.h"

#include <algorithm>

namespace tessaly {

SvgElement svgElement(std::string_view name, const XmlAttributes& attributes) {
    const auto text = [&](std::string_view attribute) {
        return std::string{attributes.value(attribute).value_or(std::string_view{})};
    };
    SvgElement element{std::string{name}, text("id"), text("class"), text("style"), {}};
    std::ranges::transform(svgPropertyNames, element.attributes.begin(), text);
    return element;
}

} // namespace tessaly
