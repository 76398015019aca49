#pragma once

#include <string_view>

/// What the program says about itself; version and homepage are set by the build.
namespace tessaly::product {

inline constexpr std::string_view name = "Tessaly";
inline constexpr std::string_view purpose =
    "Design CSS3 gradients on a canvas and take their code with you, ready for every browser.";

std::string_view version();
std::string_view homepage();

} // namespace tessaly::product
