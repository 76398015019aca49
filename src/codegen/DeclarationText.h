#pragma once

#include "codegen/Declaration.h"

#include <cstdint>
#include <string>

namespace tessaly {

class Gradient;

/// One declaration of the gradient in a notation (ColorFormat.h), with its tab in front and its line break
/// behind; empty for a gradient without stops. What an unknown orientation or notation code leaves without
/// text reads (null).
std::string declarationText(Declaration declaration, const Gradient& gradient, std::int64_t notation);

} // namespace tessaly
