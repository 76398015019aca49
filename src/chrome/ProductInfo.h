#pragma once

#include <string_view>

/// What the program says about itself; what is no constant here is set by the build.
namespace tessaly::product {

inline constexpr std::string_view name = "Tessaly";
inline constexpr std::string_view purpose =
    "Design CSS3 gradients on a canvas and take their code with you, ready for every browser.";

std::string_view version();
std::string_view homepage(); ///< empty: there is none

/// The name, without its ending, of the file that describes the program to the desktop.
std::string_view desktopId();

} // namespace tessaly::product
