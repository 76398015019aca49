#pragma once

#include <cstdint>
#include <string>

namespace tessaly {

class Gradient;

/// The standard declaration, as the stylesheet has it but on one line, with single blanks and no line break:
/// "background: linear-gradient(to right, #000000 0%, #ffffff 100%);". Empty for a gradient without stops.
std::string standardDeclarationText(const Gradient& gradient, std::int64_t notation);

/// Its value alone, without name and semicolon.
std::string standardValueText(const Gradient& gradient, std::int64_t notation);

} // namespace tessaly
