#pragma once

#include "codegen/Declaration.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tessaly {

class Gradient;

/// The text of every declaration of a gradient in a notation (ColorFormat.h).
PerDeclaration<std::string> declarationTexts(const Gradient& gradient, std::int64_t notation);

/// What stands before the declarations in the stylesheet.
inline constexpr std::string_view stylesheetOpening = ".gradient {\n\theight: 236px;\n";

/// The whole stylesheet with those declarations, back to back.
std::string stylesheetText(const PerDeclaration<std::string>& declarations);

} // namespace tessaly
