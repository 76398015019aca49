#pragma once

#include "exchange/XmlHandler.h"

#include <array>
#include <span>
#include <string>

namespace tessaly {

/// What can be declared of an element and matters to gradients.
enum class SvgProperty : std::size_t { StopColor, StopOpacity, Color, ColorInterpolation };

/// By their places in the enumeration.
inline constexpr std::array<std::string_view, 4> svgPropertyNames{"stop-color", "stop-opacity", "color",
                                                                  "color-interpolation"};

/// An element as rules see it.
struct SvgElement {
    std::string name;
    std::string id;
    std::string classes;
    std::string style;
    std::array<std::string, svgPropertyNames.size()> attributes; ///< empty: not written
};

/// An element, the last, and those that it stands in, from the root on.
using SvgPath = std::span<const SvgElement>;

SvgElement svgElement(std::string_view name, const XmlAttributes& attributes);

} // namespace tessaly
